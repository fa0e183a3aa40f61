/// \file
/// The account of control lines: were as many received as were sent?
#pragma once

#include <QList>
#include <QString>
#include <QtGlobal>
#include <optional>

struct ControlClosureFacts
{
    qint64 queued = 0;                   ///< lines accepted by a queueing session since the last check
    std::optional<qint64> receivedCount; ///< "[ctl] recv" lines since then; none when there is no log at all
    QString source;                      ///< the log file or the directory of logs that was read
};

struct ControlClosureLine
{
    QString text;
    bool isError = false;

    bool operator==(const ControlClosureLine &) const = default;
};

/// The log lines of one check, in order. An error is worth reading, but nothing depends on it.
QList<ControlClosureLine> closureVerdict(const ControlClosureFacts &facts);
