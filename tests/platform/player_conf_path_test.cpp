#include "platform/player_conf_path.h"

#include <QDir>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

TEST(PlayerConfPath, TakesTheFirstPlaceThatIsKnown)
{
    EXPECT_EQ(playerConfPath({u"/x/own.conf"_s, u"/a"_s, u"/u"_s, u"/h"_s}), u"/x/own.conf"_s);
    EXPECT_EQ(playerConfPath({{}, u"/a"_s, u"/u"_s, u"/h"_s}), u"/a/kelp/player.conf"_s);
    EXPECT_EQ(playerConfPath({{}, {}, u"/u"_s, u"/h"_s}), u"/u/kelp/player.conf"_s);
    EXPECT_EQ(playerConfPath({{}, {}, {}, u"/h"_s}), u"/h/kelp/player.conf"_s);
}

TEST(PlayerConfPath, FactsComeFromTheEnvironment)
{
    qputenv("KELP_PLAYER_CONF", "/x/own.conf");
    EXPECT_EQ(playerConfFacts().stated, u"/x/own.conf"_s);
    qunsetenv("KELP_PLAYER_CONF");
    EXPECT_EQ(playerConfFacts().stated, QString());
    EXPECT_EQ(playerConfFacts().home, QDir::homePath());
}
