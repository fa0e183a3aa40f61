#include "platform/player_conf_path.h"

#include <QDir>

using namespace Qt::StringLiterals;

PlayerConfFacts playerConfFacts()
{
    return {qEnvironmentVariable("KELP_PLAYER_CONF"), qEnvironmentVariable("APPDATA"),
            qEnvironmentVariable("USERPROFILE"), QDir::homePath()};
}

QString playerConfPath(const PlayerConfFacts &facts)
{
    if (!facts.stated.isEmpty())
        return facts.stated;
    const QString folder = !facts.appData.isEmpty()       ? facts.appData
                           : !facts.userProfile.isEmpty() ? facts.userProfile
                                                          : facts.home;
    return QDir(folder).filePath(u"kelp/player.conf"_s);
}
