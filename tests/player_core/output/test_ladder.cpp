#include "player_core/output/alsa_name.h"
#include "player_core/output/ladder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kelp_core;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum Rung::Kind;

namespace {

constexpr PathPolicy automatic = PathPolicy::automatic;
constexpr PathPolicy exclusive = PathPolicy::exclusive;
constexpr PathPolicy shared = PathPolicy::shared;

TEST(Ladder, WithoutADeviceTheServerComesFirstAndAClockLast)
{
    for (PathPolicy path : {automatic, shared})
        EXPECT_THAT(planRungs(path, "", "hw:0,0"),
                    ElementsAre(Rung{pulse, ""}, Rung{alsaAny, "default"}, Rung{clockedNull, ""}));
}

TEST(Ladder, ExclusiveTakesTheHardwareOrNothing)
{
    EXPECT_THAT(planRungs(exclusive, "", "hw:1,0"), ElementsAre(Rung{alsaExact, "hw:1,0"}));
    EXPECT_THAT(planRungs(exclusive, "", ""), IsEmpty());
    EXPECT_THAT(planRungs(exclusive, "hw:2,3", "hw:0,0"), ElementsAre(Rung{alsaExact, "hw:2,3"}));
    EXPECT_THAT(planRungs(exclusive, "cap", ""), ElementsAre(Rung{alsaExact, "cap"}));
    EXPECT_THAT(planRungs(exclusive, "pulse", "hw:0,0"), IsEmpty());
    EXPECT_THAT(planRungs(exclusive, "pulse:n1", "hw:0,0"), IsEmpty());
}

TEST(Ladder, ACardIsTakenDirectlyThenConvertedThenThroughTheServer)
{
    EXPECT_THAT(
        planRungs(automatic, "hw:1,0", ""),
        ElementsAre(Rung{alsaExact, "hw:1,0"}, Rung{alsaAny, "plughw:1,0"}, Rung{pulseCard, "hw:1,0"}));
    EXPECT_THAT(planRungs(shared, "hw:1,0", ""),
                ElementsAre(Rung{pulseCard, "hw:1,0"}, Rung{alsaAny, "plughw:1,0"}));
}

TEST(Ladder, OtherDevicesHaveOneRung)
{
    for (PathPolicy path : {automatic, shared}) {
        EXPECT_THAT(planRungs(path, "cap", "hw:0,0"), ElementsAre(Rung{alsaAny, "cap"}));
        EXPECT_THAT(planRungs(path, "plughw:0,0", "hw:0,0"), ElementsAre(Rung{alsaAny, "plughw:0,0"}));
        EXPECT_THAT(planRungs(path, "pulse", ""), ElementsAre(Rung{pulse, ""}));
        EXPECT_THAT(planRungs(path, "pulse:n1", ""), ElementsAre(Rung{pulse, "n1"}));
    }
}

TEST(AlsaName, ReadsTheFormsOfACard)
{
    const struct
    {
        const char *id;
        const char *card;
        const char *place;
        bool plug;
    } rows[] = {{"hw:1,0", "1", "1,0", false},
                {"plughw:1", "1", "1", true},
                {"hw:CARD=Desk,DEV=0", "Desk", "CARD=Desk,DEV=0", false},
                {"hw:DEV=0,CARD=Desk", "Desk", "DEV=0,CARD=Desk", false},
                {"hw:PCH", "PCH", "PCH", false},
                {"hw:", "", "", false}};
    for (const auto &row : rows) {
        const auto name = parseHardwareName(row.id);
        ASSERT_TRUE(name) << row.id;
        EXPECT_EQ(name->card, row.card) << row.id;
        EXPECT_EQ(name->place, row.place) << row.id;
        EXPECT_EQ(name->plug, row.plug) << row.id;
    }
    for (const char *id : {"", "default", "cap", "pulse", "HW:0", "phw:0"})
        EXPECT_FALSE(parseHardwareName(id)) << id;
}

} // namespace
