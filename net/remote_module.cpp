#include "net/remote_module.h"

#include "net/remote_server.h"

RemoteListener *kelp_player_make_remote(const RemoteHost &host, QObject *parent)
{
    return new RemoteServer(host, parent);
}
