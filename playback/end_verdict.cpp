#include "playback/end_verdict.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

using Kind = SessionEndVerdict::Kind;

/// The engine's own report of a stop.
constexpr int stoppedExitCode = 3;
/// From here on a failing engine has played the track: it must not stop an album at its last seconds.
constexpr double finishedPercent = 95.;
constexpr qsizetype shownLineLength = 200;

QString translated(const char *source)
{
    return QCoreApplication::translate("EndVerdict", source);
}

bool wantsExclusiveFallback(const SessionEndFacts &facts)
{
    return facts.inProcess && !facts.audioHasStarted && facts.exclusiveFallbackRow != facts.currentRow &&
           !facts.userStopped && !facts.restartPending && !facts.sessionClosing && facts.outputPathExclusive;
}

SessionEndVerdict failure(const SessionEndFacts &facts)
{
    SessionEndVerdict verdict{Kind::Failed, {}, false};
    if (facts.exitCode == 0 && !facts.crashed) {
        verdict.lines.append(
            {translated(QT_TRANSLATE_NOOP("EndVerdict", "未到结尾就结束（%1%），已停止，不继续下一首"))
                 .arg(facts.progressPercent, 0, 'f', 1),
             true});
        return verdict;
    }
    verdict.lines.append(
        {translated(QT_TRANSLATE_NOOP("EndVerdict", "播放器异常退出，代码: %1")).arg(facts.exitCode), true});
    if (!facts.lastEngineLine.isEmpty())
        verdict.lines.append({translated(QT_TRANSLATE_NOOP("EndVerdict", "  引擎最后一行: %1"))
                                  .arg(facts.lastEngineLine.left(shownLineLength)),
                              true});
    return verdict;
}

SessionEndVerdict plainVerdict(const SessionEndFacts &facts)
{
    if (wantsExclusiveFallback(facts))
        return {Kind::ExclusiveFallback,
                {{translated(QT_TRANSLATE_NOOP(
                      "EndVerdict",
                      "独占端点打不开（被占用或格式不支持）⇒ 本曲改用 auto 重试（独占 → 共享 阶梯）")),
                  true}},
                false};
    if (facts.sessionClosing)
        return {Kind::Closed,
                {{translated(QT_TRANSLATE_NOOP("EndVerdict",
                                               "会话已关闭（设备/布局变更）；下次播放按新设置开新会话")),
                  false}},
                false};
    if (facts.restartPending)
        return {Kind::Restart, {}, false};
    if (facts.userStopped || facts.exitCode == stoppedExitCode)
        return {Kind::Stopped, {{translated(QT_TRANSLATE_NOOP("EndVerdict", "播放已停止")), false}}, false};
    if (facts.progressPercent < finishedPercent)
        return failure(facts);
    return {Kind::Finished, {{translated(QT_TRANSLATE_NOOP("EndVerdict", "播放完成")), false}}, false};
}

} // namespace

SessionEndVerdict sessionEndVerdict(const SessionEndFacts &facts)
{
    const bool ignoring = facts.ignoreDoneUntilMs > 0 && facts.nowMs < facts.ignoreDoneUntilMs;
    // An end is queued, so it can arrive when its session has long been replaced.
    if (facts.supersededSession || ignoring)
        return {
            Kind::Ignored,
            {{translated(QT_TRANSLATE_NOOP(
                  "EndVerdict", "忽略上一个会话的结束事件（会话刚刚重建，这个事件来自被拆掉的那个会话）。")),
              false}},
            false};
    SessionEndVerdict verdict = plainVerdict(facts);
    verdict.ignoreTimePassed = facts.ignoreDoneUntilMs > 0;
    return verdict;
}

bool namesRow(QStringView failedLine, const PlaylistEntry &entry)
{
    for (const QString &path : {entry.path, entry.cuePath, entry.isoPath}) {
        if (!path.isEmpty() && (failedLine.endsWith(": "_L1 + path) ||
                                failedLine.endsWith(": "_L1 + QFileInfo(path).fileName())))
            return true;
    }
    return false;
}
