#include "app/session_log_sweep.h"

#include <QDir>
#include <QFileInfo>

using namespace Qt::StringLiterals;

namespace {

constexpr auto directoryPattern = "kelp-log-*"_L1;
/// A younger directory may belong to a program that is running.
constexpr qint64 youngSec = 3600;

} // namespace

SweepLimits sweepLimits(const QString &keepDays, const QString &keepCount)
{
    SweepLimits limits;
    if (const int days = keepDays.toInt(); days > 0)
        limits.keepDays = days;
    if (!keepCount.isEmpty())
        limits.keepCount = std::max(1, keepCount.toInt());
    return limits;
}

SweepPlan planSessionLogSweep(const QList<SessionLogDir> &newestFirst, const SweepLimits &limits,
                              const QDateTime &now)
{
    SweepPlan plan;
    const QDateTime oldest = now.addDays(-limits.keepDays);
    for (qsizetype index = 0; index < newestFirst.size(); ++index) {
        const SessionLogDir &directory = newestFirst.at(index);
        if (directory.modified.secsTo(now) < youngSec)
            continue;
        if (directory.isEmpty)
            plan.empty.append(directory.path);
        else if (directory.modified < oldest || index >= limits.keepCount)
            plan.aged.append(directory.path);
    }
    return plan;
}

QString sweepSessionLogs()
{
    const QDir temp(QDir::tempPath());
    const QFileInfoList found = temp.entryInfoList(
        {directoryPattern}, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks, QDir::Time);
    QList<SessionLogDir> directories;
    for (const QFileInfo &info : found)
        directories.append(
            {info.absoluteFilePath(), info.lastModified(),
             QDir(info.absoluteFilePath())
                 .isEmpty(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot)});
    const SweepLimits limits =
        sweepLimits(qEnvironmentVariable("KELP_LOG_KEEP_DAYS"), qEnvironmentVariable("KELP_LOG_KEEP_COUNT"));
    const SweepPlan plan = planSessionLogSweep(directories, limits, QDateTime::currentDateTime());
    int emptyCount = 0;
    int agedCount = 0;
    for (const QString &path : plan.empty)
        emptyCount += QDir().rmdir(path) ? 1 : 0;
    for (const QString &path : plan.aged)
        agedCount += QDir(path).removeRecursively() ? 1 : 0;
    if (emptyCount + agedCount == 0)
        return {};
    return u"swept %1 empty + %2 aged session log dir(s) (keep %3 days / %4 dirs)"_s.arg(emptyCount)
        .arg(agedCount)
        .arg(limits.keepDays)
        .arg(limits.keepCount);
}
