/// \file
/// The window's memory for the one engine it drives.
#pragma once

#include "engine/control_log_count.h"
#include "engine/player_session.h"
#include "engine/probe_worker.h"
#include "engine/telemetry_mailbox.h"

#include <QFile>
#include <QMap>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <memory>

struct EngineLinkState
{
    QString playerBin;       ///< the engine's program, empty while not found
    QString playerBinSource; ///< translated label of where it was found

    std::unique_ptr<PlayerSession> session;    ///< lives from one ensureSession to the next
    std::shared_ptr<TelemetryMailbox> mailbox; ///< shared with threads of the session's
    QTimer *pollTimer = nullptr;               ///< child of the window
    /// Raised at every start of a session; tells the end of this run from that of an earlier one.
    int startCount = 0;

    std::unique_ptr<ProbeWorker> probes = std::make_unique<ProbeWorker>();

    QMap<QString, QString> fxLast; ///< the last line sent for each effect
    int queuedCtlCount = 0;        ///< lines queued since the last closure check
    ControlLogCounter received;    ///< what the engine's log says it received
    QTimer *noAudioTimer = nullptr;

    QString logPath;                          ///< the engine's log of this run, empty when it has none
    std::unique_ptr<QTemporaryDir> logHolder; ///< deletes the log at the end, unless it is to be kept
    std::unique_ptr<QFile> hostCopy;          ///< our copy of an in-process engine's output, in the same file
    qint64 hostLineCount = 0;
};
