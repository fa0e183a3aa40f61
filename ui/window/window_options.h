/// \file
/// What a window is built with. The program takes the defaults; tests put their own in.
#pragma once

#include "engine/engine_probe.h"
#include "engine/session_factory.h"
#include "playback/transport_times.h"

#include <functional>
#include <memory>

class QObject;

struct WindowOptions
{
    using MakeSession =
        std::function<std::unique_ptr<PlayerSession>(QObject *parent, const SessionOptions &options)>;
    using Probe = std::function<PlayerProbeResult(const QString &playerBin, const QStringList &args,
                                                  int timeoutMs, const ProbeLog &log)>;

    MakeSession makeSession = &::makeSession;
    Probe probe = &runEngineProbe; ///< called on any thread
    TransportTimes times = {};
    bool asksBeforeClosing = true; ///< false while a hook is armed that ends the program
};
