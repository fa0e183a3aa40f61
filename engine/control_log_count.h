/// \file
/// Counts what the engine's log says it received.
#pragma once

#include <QHash>
#include <QIODevice>
#include <QString>
#include <QtGlobal>
#include <optional>

/// Counts the lines that hold "[ctl] recv", from the device's present position to its end or to limitBytes.
/// Reads in pieces of fixed size: neither a large log nor an endless line costs memory.
qint64 countReceivedLines(QIODevice &log, qint64 limitBytes);

/// Remembers how far each log was counted. All sessions of one run share a log, so a check must not count
/// again what an earlier one has counted.
class ControlLogCounter
{
public:
    /// The new "[ctl] recv" lines of the file logPath or, when that is empty, of all files of logDir. None
    /// when there is no file to read. A file that has become shorter was written anew and counts from its
    /// start.
    std::optional<qint64> countNew(const QString &logPath, const QString &logDir);

private:
    std::optional<qint64> countNewIn(const QString &path);

    QHash<QString, qint64> m_countedBytes; ///< by path
};
