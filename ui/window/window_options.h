/// \file
/// What a window is built with. The program takes the defaults; tests put their own in.
#pragma once

#include "engine/engine_probe.h"
#include "engine/session_factory.h"
#include "net/remote_listener.h"
#include "playback/transport_times.h"

#include <functional>
#include <memory>

class QObject;
class QWidget;

/// The desktop's dialog for a file to be written. GUI thread.
QString askSavePath(QWidget *parent, const QString &title, const QString &proposal);

struct WindowOptions
{
    using MakeSession =
        std::function<std::unique_ptr<PlayerSession>(QObject *parent, const SessionOptions &options)>;
    using Probe = std::function<PlayerProbeResult(const QString &playerBin, const QStringList &args,
                                                  int timeoutMs, const ProbeLog &log)>;

    /// \return empty when the user thought better of it
    using AskSavePath =
        std::function<QString(QWidget *parent, const QString &title, const QString &proposal)>;

    using MakeRemote =
        std::function<RemoteListener *(const RemoteHost &host, QObject *parent, QString &error)>;

    MakeSession makeSession = &::makeSession;
    Probe probe = &runEngineProbe; ///< called on any thread
    AskSavePath askSavePath = &::askSavePath;
    MakeRemote makeRemote = &makeRemoteListener;
    TransportTimes times = {};
    bool asksBeforeClosing = true; ///< false while a hook is armed that ends the program
};
