#include "playback/preload.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace {

constexpr double gaplessWindowSec = 1.5;
constexpr double diagnosisSec = 3.;
/// Later than this the engine has no time left to open the next file.
constexpr double leastRemainingSec = 0.02;

double windowSec(const PreloadFacts &facts)
{
    if (facts.crossfadeSec > 0.)
        return facts.crossfadeSec;
    return facts.gapless ? gaplessWindowSec : 0.;
}

QString folderOf(const PlaylistEntry &entry)
{
    return QFileInfo(entry.path).path();
}

QString seconds(double sec)
{
    return QString::number(sec, 'f', 1);
}

} // namespace

bool pathMeansRow(const PlaylistEntry &playing, const PlaylistEntry &next)
{
    const bool follows = playing.track >= 1 && next.track == playing.track + 1;
    if (next.isStream())
        return false;
    if (!next.isoPath.isEmpty())
        return next.isoPath == playing.isoPath ? follows : next.track == 1;
    if (!next.cuePath.isEmpty())
        return next.cuePath == playing.cuePath && follows;
    const bool sheetPlays = !playing.cuePath.isEmpty() && !playing.isStream();
    return !sheetPlays || folderOf(next) != folderOf(playing);
}

bool preloadNeedsNextRow(const PreloadFacts &facts)
{
    const double remaining = facts.totalSec - facts.positionSec;
    return !facts.pending && facts.totalSec > 0. && remaining > 0. &&
           remaining < std::max(diagnosisSec, std::nextafter(windowSec(facts), HUGE_VAL));
}

PreloadPlan planPreload(const PreloadFacts &facts)
{
    PreloadPlan plan;
    plan.windowSec = windowSec(facts);
    plan.remainingSec = facts.totalSec - facts.positionSec;
    if (facts.pending || facts.totalSec <= 0.)
        return plan;
    plan.diagnose = !facts.diagnosisDone && plan.remainingSec > 0. && plan.remainingSec < diagnosisSec;
    const bool due = plan.windowSec > 0. && plan.remainingSec > leastRemainingSec &&
                     plan.remainingSec <= plan.windowSec && facts.nextRow >= 0 &&
                     facts.nextRow != facts.currentRow && !facts.next.path.isEmpty();
    plan.load = due && pathMeansRow(facts.playing, facts.next);
    plan.refuse = due && !plan.load && !facts.refusalTold;
    return plan;
}

QString preloadDiagnosis(const PreloadPlan &plan, const PreloadFacts &facts)
{
    return QCoreApplication::translate(
               "Preload", "曲尾检查: 剩余 %1 s, 预载窗口 %2 s (交叉淡化 %3 / 无缝 %4), 下一首=%5")
        .arg(seconds(plan.remainingSec), seconds(plan.windowSec), seconds(facts.crossfadeSec),
             facts.gapless ? u"on"_s : u"off"_s)
        .arg(facts.nextRow);
}

QString preloadRefusal(const QString &text)
{
    return QCoreApplication::translate(
               "Preload", "不提前装载下一首 (%1): 引擎只凭路径会把它当成另一首 ⇒ 本曲放完后再按曲号装载")
        .arg(text);
}

QString preloadAnnouncement(const PreloadPlan &plan, double crossfadeSec, const QString &fileName)
{
    if (crossfadeSec > 0.)
        return QCoreApplication::translate("Preload", "交叉淡化: 距曲尾 %1 s, 提前装载下一首 (%2)")
            .arg(seconds(plan.remainingSec), fileName);
    return QCoreApplication::translate("Preload", "无缝: 曲尾前 %1 s, 预装下一首 (%2)")
        .arg(seconds(plan.remainingSec), fileName);
}

bool preloadTaken(const PreloadTakenFacts &facts)
{
    const double reachedSec = std::max(facts.posAtPreloadSec, facts.lastPositionSec);
    const bool ranBackward = reachedSec > 1. && reachedSec > facts.positionSec + 1.;
    const bool jumpedInLoop = facts.loopFromSec >= 0. && facts.positionSec > facts.loopFromSec - 1.;
    const bool totalChanged = facts.totalSec > 0.5 && facts.totalAtPreloadSec > 0.5 &&
                              std::abs(facts.totalSec - facts.totalAtPreloadSec) > 0.5 &&
                              facts.positionSec < 5.;
    return (ranBackward && !jumpedInLoop) || totalChanged;
}

bool isOfPreloadedTrack(const QString &doneFile, const QString &currentPath, const QString &preloadedPath)
{
    const auto names = [&doneFile](const QString &path) {
        return !path.isEmpty() && (doneFile == path || doneFile == QFileInfo(path).fileName());
    };
    return names(preloadedPath) && !names(currentPath);
}
