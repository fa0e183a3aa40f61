#include "player_core/output/player_conf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>

using namespace kelp_core;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

namespace {

std::string pathWith(const std::map<std::string, std::string> &environment)
{
    return playerConfPath([&environment](const char *name) -> const char * {
        const auto found = environment.find(name);
        return found == environment.end() ? nullptr : found->second.c_str();
    });
}

TEST(PlayerConf, StandsInTheFirstFolderThatIsSet)
{
    EXPECT_EQ(pathWith({{"KELP_PLAYER_CONF", "/x/my.conf"}, {"APPDATA", "/a"}}), "/x/my.conf");
    EXPECT_EQ(pathWith({{"APPDATA", "/a"}, {"USERPROFILE", "/u"}, {"HOME", "/h"}}), "/a/kelp/player.conf");
    EXPECT_EQ(pathWith({{"USERPROFILE", "/u"}, {"HOME", "/h"}}), "/u/kelp/player.conf");
    EXPECT_EQ(pathWith({{"KELP_PLAYER_CONF", ""}, {"HOME", "/h"}}), "/h/kelp/player.conf");
    EXPECT_EQ(pathWith({}), "");
}

TEST(PlayerConf, ReadsAllMarkLines)
{
    EXPECT_THAT(parseDsdOk("volume=3\ndsd_ok= Desk DAC ;;USB Audio\r\n#dsd_ok=no\ndsd_ok=hw:1,0"),
                ElementsAre("Desk DAC", "USB Audio", "hw:1,0"));
    EXPECT_THAT(parseDsdOk(" dsd_ok=x\ndsd_ok=\ndsd_ok= ; ;\n"), IsEmpty());
    EXPECT_THAT(parseDsdOk(""), IsEmpty());
}

TEST(PlayerConf, AMarkIsAPartOfTheNameInAnyCase)
{
    const std::vector<std::string> entries{"usb", "Örgel"};
    EXPECT_TRUE(isDsdMarked(entries, "Desk DAC, USB Audio"));
    EXPECT_FALSE(isDsdMarked(entries, "örgel")) << "only ASCII letters are folded";
    EXPECT_TRUE(isDsdMarked(entries, "ÖRGEL"));
    EXPECT_FALSE(isDsdMarked(entries, "HDMI"));
    EXPECT_FALSE(isDsdMarked({}, "USB"));
    EXPECT_FALSE(isDsdMarked({""}, "USB"));
    EXPECT_FALSE(isDsdMarked(entries, ""));
}

} // namespace
