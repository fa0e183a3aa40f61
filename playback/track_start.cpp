#include "playback/track_start.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

constexpr double leastPositionSec = 0.5;
constexpr double leastResumeSec = 1.0;
constexpr int stopTimeoutSec = 5;

bool isPlainFile(const PlaylistEntry &entry)
{
    return entry.cuePath.isEmpty() && entry.isoPath.isEmpty() && !entry.path.isEmpty();
}

/// A station has its mark where others have a sheet; a session is never reused for it.
bool isContainer(const PlaylistEntry &entry)
{
    return !entry.isStream() && (!entry.cuePath.isEmpty() || !entry.isoPath.isEmpty());
}

double startPosition(const TrackStartFacts &facts, bool reuse)
{
    if (reuse)
        return -1.;
    if (isPlainFile(facts.entry) && facts.lastPosSec > leastPositionSec && facts.lastPosRow == facts.row)
        return facts.lastPosSec;
    const bool resumes = facts.row == facts.lastStartedRow && !facts.entry.path.isEmpty() &&
                         facts.resumeEnabled && facts.absolutePath == facts.resumeFile &&
                         facts.resumePosSec > leastResumeSec;
    return resumes ? facts.resumePosSec : -1.;
}

QString loadLineFor(const PlaylistEntry &entry, double startSec)
{
    const QString track = QString::number(entry.track);
    if (!entry.isoPath.isEmpty())
        return u"load-iso "_s + track + u' ' + entry.isoPath;
    if (!entry.cuePath.isEmpty())
        return u"load-cue "_s + track + u' ' + entry.cuePath;
    if (startSec > leastPositionSec)
        return u"loadat "_s + QString::number(startSec, 'f', 3) + u' ' + entry.path;
    return u"load "_s + entry.path;
}

} // namespace

TrackStartPlan planTrackStart(const TrackStartFacts &facts)
{
    const PlaylistEntry &entry = facts.entry;
    const bool plainFile = isPlainFile(entry);
    const bool container = isContainer(entry);
    const bool canReuse = facts.sessionLive && facts.sessionRuns && facts.wanted == facts.opened;

    TrackStartPlan plan;
    plan.rebuild = facts.sessionLive && facts.sessionRuns && !canReuse;
    plan.reuse = canReuse && (plainFile || container);
    plan.becomesLive = plainFile || container;
    plan.startSec = startPosition(facts, plan.reuse);
    if (!plainFile || plan.reuse)
        plan.argFile = entry.path;
    plan.argCue = entry.isStream() ? QString() : entry.cuePath;
    plan.argIso = entry.isoPath;
    plan.argTrack = entry.track;
    if (plan.reuse || plainFile) {
        plan.loadLine = loadLineFor(entry, plan.startSec);
        plan.announcesResume = plainFile && plan.startSec > leastPositionSec;
    }
    return plan;
}

bool fitsControlLine(const PlaylistEntry &entry, bool queued)
{
    const QString &path = !entry.isoPath.isEmpty()   ? entry.isoPath
                          : !entry.cuePath.isEmpty() ? entry.cuePath
                                                     : entry.path;
    return !path.endsWith(u'\n') && !path.endsWith(u'\r') && (queued || !path.contains(u'\n'));
}

bool tracksResume(const PlaylistEntry &entry)
{
    return !entry.path.isEmpty() && !entry.isContainerTrack();
}

QString resumeAnnouncement(double startSec)
{
    const int sec = static_cast<int>(startSec);
    return QCoreApplication::translate("TrackStart", "从 %1:%2 继续（上次停在这里）")
        .arg(sec / 60)
        .arg(sec % 60, 2, 10, QChar(u'0'));
}

QString stopTimeoutText(bool canBeKilled)
{
    if (canBeKilled)
        return QCoreApplication::translate("TrackStart", "播放器在 %1 秒内没有收尾完成 —— 强制结束。")
            .arg(stopTimeoutSec);
    return QCoreApplication::translate(
               "TrackStart",
               "播放器在 %1 秒内没有收尾完成；进程内会话无法强杀（请等它收尾；逃生口: KELP_GUI_INPROC=0）")
        .arg(stopTimeoutSec);
}
