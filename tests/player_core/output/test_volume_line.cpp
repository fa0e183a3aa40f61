#include "player_core/output/volume_line.h"

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

TEST(VolumeLine, UnityIsNoughtDecibelWhateverThePercentage)
{
    EXPECT_EQ(deviceVolumeLine({"hw:0,0", "PCM", 86, 0.0, false}),
              "VOL hw:0,0 \"PCM\" percent=86 db=0.00 muted=no unity=yes\n");
    EXPECT_EQ(deviceVolumeLine({"hw:0,0", "PCM", 100, 4.0, true}),
              "VOL hw:0,0 \"PCM\" percent=100 db=4.00 muted=yes unity=no\n");
}

TEST(VolumeLine, SaysUnknownForWhatIsNotKnown)
{
    EXPECT_EQ(deviceVolumeLine({"hw:0,0", "A \"B\"\n", std::nullopt, std::nullopt, std::nullopt}),
              "VOL hw:0,0 \"A  B  \" percent=unknown db=unknown muted=unknown unity=unknown\n");
    EXPECT_EQ(volumeNotKnown("cap", "There is none."), "VOL cap not known: There is none\n");
}

} // namespace
