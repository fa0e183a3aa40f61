#include "app/session_log_sweep.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr auto directoryPrefix = "kelp-log-"_L1;
/// A younger directory may belong to a program that is running.
constexpr qint64 youngSec = 3600;

/// By a comparison: a pattern would be compiled to machine code at each start, to be used once.
QFileInfoList newestFirst(const QString &folder)
{
    QFileInfoList found;
    QDirIterator each(folder, QDir::Dirs | QDir::NoDotAndDotDot | QDir::NoSymLinks);
    while (each.hasNext()) {
        each.next();
        if (each.fileName().startsWith(directoryPrefix, Qt::CaseInsensitive))
            found.append(each.fileInfo());
    }
    std::sort(found.begin(), found.end(), [](const QFileInfo &a, const QFileInfo &b) {
        return std::pair(b.lastModified(), a.fileName()) < std::pair(a.lastModified(), b.fileName());
    });
    return found;
}

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
    QList<SessionLogDir> directories;
    for (const QFileInfo &info : newestFirst(QDir::tempPath()))
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
