/// \file
/// Where the engine keeps its own file.
#pragma once

#include <QString>

/// What the path is decided over; empty where a variable is not set.
struct PlayerConfFacts
{
    QString stated;      ///< KELP_PLAYER_CONF
    QString appData;     ///< APPDATA
    QString userProfile; ///< USERPROFILE
    QString home;
};

PlayerConfFacts playerConfFacts();

/// The stated path, else kelp/player.conf below the first folder that is known.
QString playerConfPath(const PlayerConfFacts &facts);
