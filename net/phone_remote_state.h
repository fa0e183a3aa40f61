/// \file
/// The window's memory for the phone remote.
#pragma once

#include <QString>

class RemoteListener;

/// What is known of a track beside its row. Empty where nothing is known.
struct RemoteTags
{
    QString title;
    QString artist;
    QString album;
};

struct PhoneRemoteState
{
    bool remoteEnabled = false;
    quint16 remotePort = 7788;              ///< taken from the spin box when the switch is turned
    RemoteListener *remoteServer = nullptr; ///< child of the window; made at first use, null while off
};
