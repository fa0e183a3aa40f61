/// \file
/// One-shot runs of the engine: one flag, one answer.
#pragma once

#include "engine/player_session.h"

#include <QString>
#include <QStringList>
#include <functional>

namespace kelp {
class EngineLibrary;
}

/// rc: the engine's exit code; -1 not run; -3 could not start; -4 crashed; -1000 timed out.
struct PlayerProbeResult
{
    int rc = 0;
    QString text; ///< the whole output
};

using ProbeLog = std::function<void(const QString &text, bool isError)>;

/// Runs the engine's program and waits. Blocks the calling thread, which may be any; log is called on it.
///
/// \param playerBin  empty: this very program, which answers as the engine when its first argument begins
///                   with a dash
/// \param log        may be empty
PlayerProbeResult runEngineProbe(const QString &playerBin, const QStringList &args, int timeoutMs,
                                 const ProbeLog &log);

/// Asks the engine's library on the calling thread. The answer is cut at 1 MiB.
///
/// \param enginePath    what the engine sees as its name; empty: "KelpPlayerEngine"
/// \param exchangeStage may be empty
PlayerProbeResult runInProcessProbe(kelp::EngineLibrary &library, const QString &enginePath,
                                    const QStringList &args, const ExchangeStage &exchangeStage);
