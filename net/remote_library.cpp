#include "net/remote_module.h"

#include "platform/program_library.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

RemoteListener *makeRemoteListener(const RemoteHost &host, QObject *parent, QString &error)
{
    const QStringList paths =
        programLibraryPaths(QCoreApplication::applicationDirPath(), u"libkelp_player_net.so"_s);
    void *const library = loadLibrary(paths, error);
    if (!library)
        return nullptr;
    const auto make =
        findEntry<decltype(&kelp_player_make_remote)>(library, "kelp_player_make_remote", error);
    return make ? make(host, parent) : nullptr;
}
