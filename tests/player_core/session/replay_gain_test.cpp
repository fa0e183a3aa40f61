#include "player_core/session/replay_gain.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelp_core::test {

namespace {

GainTags tagsOf(std::optional<double> track, std::optional<double> trackPeak,
                std::optional<double> album = {}, std::optional<double> albumPeak = {})
{
    GainTags tags;
    tags.trackGainDb = track;
    tags.trackPeak = trackPeak;
    tags.albumGainDb = album;
    tags.albumPeak = albumPeak;
    return tags;
}

double linear(double db)
{
    return std::pow(10.0, db / 20.0);
}

struct GainCase
{
    const char *name;
    ReplayGainMode mode;
    GainTags tags;
    bool direct;
    double gain;
    const char *text;
};

const GainCase cases[] = {
    {"off", ReplayGainMode::off, tagsOf(-6.0, 0.5), false, 1.0, ""},
    {"track", ReplayGainMode::track, tagsOf(-7.3, 0.99, -3.0, 1.0), false, linear(-7.3),
     "track gain -7.30 dB"},
    {"album", ReplayGainMode::album, tagsOf(-7.3, 0.99, -3.0, 1.0), false, linear(-3.0),
     "album gain -3.00 dB"},
    {"album missing", ReplayGainMode::album, tagsOf(-7.3, 0.99), false, linear(-7.3),
     "track gain -7.30 dB, for want of the album's"},
    {"track missing", ReplayGainMode::track, tagsOf({}, {}, -2.0, 0.9), false, linear(-2.0),
     "album gain -2.00 dB, for want of the track's"},
    {"no tag", ReplayGainMode::track, tagsOf({}, 0.9), false, 1.0,
     "this track has no tag for it, so its level stays"},
    {"lift within the peak", ReplayGainMode::track, tagsOf(3.0, 0.5), false, linear(3.0),
     "track gain +3.00 dB"},
    {"lift beyond the peak", ReplayGainMode::track, tagsOf(9.0, 0.5), false, 2.0,
     "track gain +9.00 dB, lowered to +6.02 dB so that the peak does not clip"},
    {"peak beyond full scale", ReplayGainMode::track, tagsOf(-1.0, 1.25), false, 0.8,
     "track gain -1.00 dB, lowered to -1.94 dB so that the peak does not clip"},
    {"lift without a peak", ReplayGainMode::track, tagsOf(2.5, {}), false, 1.0,
     "track gain +2.50 dB, not applied: without a stored peak it might clip"},
    {"nothing to do", ReplayGainMode::track, tagsOf(0.0, {}), false, 1.0, "track gain +0.00 dB"},
    {"direct DSD", ReplayGainMode::album, tagsOf(-7.3, 0.99, -3.0, 1.0), true, 1.0,
     "not applied, since DSD goes out directly"},
};

} // namespace

TEST(ReplayGainTest, TheChoiceAndItsReason)
{
    for (const GainCase &c : cases) {
        const ReplayGainChoice choice = chooseReplayGain(c.mode, c.tags, c.direct);
        EXPECT_NEAR(choice.gain, c.gain, 1e-12) << c.name;
        EXPECT_EQ(choice.text, c.text) << c.name;
    }
}

} // namespace kelp_core::test
