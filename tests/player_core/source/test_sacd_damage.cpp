// Damaged SACD images end in a result or in one clear line, never in a crash, a loop or a wrong frame.

#include "player_core/source/sacd_frame_reader.h"

#include "tests/support/sacd_maker.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using namespace kelp_test;
using kelp_core::SacdFrameReader;

/// Reads the first and the last frames of all tracks. Returns how many frames were found; the plain ones must
/// have the size of a frame.
int walk(const std::vector<uint8_t> &bytes, std::string &error)
{
    kelp_core::MemoryInput input(bytes);
    const kelp_core::SacdOutcome outcome = kelp_core::readSacdImage(input);
    error = outcome.error;
    EXPECT_EQ(outcome.image.has_value(), error.empty());
    if (!outcome.image)
        return 0;
    const kelp_core::SacdArea &area = outcome.image->area;
    kelp_core::SacdSectors sectors(input, outcome.image->storedBytes);
    SacdFrameReader reader(sectors, area);
    kelp_core::SacdFrame frame;
    int found = 0;
    for (const kelp_core::SacdTrack &track : area.tracks) {
        for (int64_t number = track.startFrame; number < track.endFrame(); ++number) {
            // A track whose length is damaged is an hour long: its beginning and end will do.
            if (number == track.startFrame + 8)
                number = std::max(number, track.endFrame() - 2);
            if (reader.read(number, track.firstSector, frame) != SacdFrameReader::Result::found)
                continue;
            ++found;
            EXPECT_EQ(frame.number, number);
            if (!frame.dst) {
                EXPECT_EQ(frame.bytes.size(), static_cast<size_t>(kelp_core::sacdFrameBytes * area.channels));
            }
        }
    }
    return found;
}

bool oneClearLine(const std::string &error)
{
    return !error.empty() && error.find('\n') == std::string::npos && error.size() < 200;
}

class SacdDamage : public testing::Test
{
protected:
    SacdImageMade image_ = makeSacd({.areas = {plainArea(SacdForm::plain14, 2, 3)}});

    void flipAll(int sector, size_t bytes)
    {
        for (size_t byte = 0; byte < bytes; ++byte) {
            for (const uint8_t mask : {uint8_t{0xFF}, uint8_t{0x01}, uint8_t{0x80}}) {
                image_.bytes[image_.at(sector, byte)] ^= mask;
                std::string error;
                walk(image_.bytes, error);
                EXPECT_TRUE(error.empty() || oneClearLine(error)) << error;
                image_.bytes[image_.at(sector, byte)] ^= mask;
            }
        }
    }
};

TEST_F(SacdDamage, NothingIsLostWithoutAny)
{
    std::string error;
    EXPECT_EQ(walk(image_.bytes, error), 6) << error;
}

TEST_F(SacdDamage, EveryByteOfTheMasterTableMayBeWrong)
{
    flipAll(510, 200);
    // Without the copies every wrong byte counts.
    for (const int copy : {520, 530})
        std::fill_n(image_.bytes.begin() + static_cast<std::ptrdiff_t>(image_.at(copy)), 2048, uint8_t{0});
    flipAll(510, 200);
}

TEST_F(SacdDamage, EveryByteOfTheAreaTableMayBeWrong)
{
    const SacdPlaces &places = image_.areas[0];
    for (int i = 0; i < places.tableSectors; ++i) {
        std::fill_n(image_.bytes.begin() + static_cast<std::ptrdiff_t>(image_.at(places.copy + i)), 2048,
                    uint8_t{0});
    }
    for (int i = 0; i < places.tableSectors; ++i)
        flipAll(places.table + i, i == 0 ? 160 : 40);
}

TEST_F(SacdDamage, EveryHeadOfAnAudioSectorMayBeWrong)
{
    const SacdPlaces &places = image_.areas[0];
    for (int sector = places.firstAudio; sector <= places.lastAudio; ++sector)
        flipAll(sector, 24);
}

TEST_F(SacdDamage, AnImageMayEndAnywhere)
{
    const size_t whole = image_.bytes.size();
    std::string error;
    int before = 0;
    for (size_t sectors = 0; sectors * 2048 <= whole; ++sectors) {
        std::vector<uint8_t> cut(image_.bytes.begin(),
                                 image_.bytes.begin() + static_cast<std::ptrdiff_t>(sectors * 2048));
        const int found = walk(cut, error);
        EXPECT_TRUE(error.empty() || oneClearLine(error)) << error;
        EXPECT_GE(found, before) << "with " << sectors << " sectors"; // more of the image never gives less
        before = found;
    }
    EXPECT_EQ(before, 6);
}

TEST_F(SacdDamage, ALostSectorCostsTheFramesThatItHeld)
{
    const SacdPlaces &places = image_.areas[0];
    std::string error;
    for (int sector = places.firstAudio; sector <= places.lastAudio; ++sector) {
        std::vector<uint8_t> bytes = image_.bytes;
        std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(image_.at(sector)), 2048, uint8_t{0});
        const int found = walk(bytes, error);
        EXPECT_GE(found, 3) << "without sector " << sector;
        EXPECT_LT(found, 6) << "without sector " << sector;
    }
}

TEST_F(SacdDamage, AnAreaOfEmptySectorsEnds)
{
    const SacdPlaces &places = image_.areas[0];
    for (int sector = places.firstAudio; sector <= places.lastAudio; ++sector)
        std::fill_n(image_.bytes.begin() + static_cast<std::ptrdiff_t>(image_.at(sector)), 2048, uint8_t{0});
    std::string error;
    EXPECT_EQ(walk(image_.bytes, error), 0);
}

TEST_F(SacdDamage, TimesThatRunBackwardDoNotLoop)
{
    const SacdPlaces &places = image_.areas[0];
    // Every frame claims to be the first.
    for (int sector = places.firstAudio; sector <= places.lastAudio; ++sector) {
        uint8_t *bytes = image_.bytes.data() + image_.at(sector);
        const size_t packets = bytes[0] >> 5, frames = bytes[0] >> 2 & 7;
        std::fill_n(bytes + 1 + 2 * packets, 3 * frames, uint8_t{0});
    }
    std::string error;
    EXPECT_LE(walk(image_.bytes, error), 2);
}

} // namespace
