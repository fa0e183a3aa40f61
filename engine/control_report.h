/// \file
/// The rules of the one door for control lines: what is logged of a line, and what a line sets going.
#pragma once

#include <QString>
#include <optional>
#include <utility>

/// What is known once a line has been handed to a session.
struct ControlSendFacts
{
    QString line;
    bool hasSession = false;
    bool queues = false;  ///< the session only queues
    int bytes = -1;       ///< answer of writeLine, -1 without a session
    bool flushed = true;  ///< whether the write completed in time
    QString sessionError; ///< the session's lastError
    qint64 tookMs = 0;
};

struct ControlSendReport
{
    bool taken = false;    ///< a session took the line with at least one byte
    bool counts = false;   ///< the line joins the account of the closure check
    QString slowComplaint; ///< an error for the log, empty when the line was quick
    QString logText;       ///< an error when not taken
};

ControlSendReport controlSendReport(const ControlSendFacts &facts);

/// The name of the effect and the line, for the memory of effects in force. None for other lines.
std::optional<QString> effectNameOf(const QString &line);

/// Whether sound has to follow this line, so that silence after it is worth a word.
bool expectsSound(const QString &line);
