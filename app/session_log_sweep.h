/// \file
/// Removes the engine logs of former runs.
#pragma once

#include <QDateTime>
#include <QList>
#include <QString>

struct SessionLogDir
{
    QString path;
    QDateTime modified;
    bool isEmpty = false;
};

struct SweepLimits
{
    int keepDays = 7;
    int keepCount = 20;
};

/// The limits by the texts of KELP_LOG_KEEP_DAYS (counts above 0) and KELP_LOG_KEEP_COUNT (at least 1).
SweepLimits sweepLimits(const QString &keepDays, const QString &keepCount);

struct SweepPlan
{
    QStringList empty; ///< to be removed
    QStringList aged;  ///< to be removed with what they hold
};

/// \param newestFirst sorted by modification time
SweepPlan planSessionLogSweep(const QList<SessionLogDir> &newestFirst, const SweepLimits &limits,
                              const QDateTime &now);

/// Sweeps the temporary directory. The sentence that says what was removed; empty when nothing was.
QString sweepSessionLogs();
