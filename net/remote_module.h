/// \file
/// The entry of the library that holds the phone remote's listener.
#pragma once

#include "net/remote_listener.h"

/// GUI thread. \param host is copied \return the parent's
extern "C" __attribute__((visibility("default"))) RemoteListener *
kelp_player_make_remote(const RemoteHost &host, QObject *parent);
