#pragma once

#include "tests/support/dsd_signal.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelp_test {

/// How an area's frames stand in its sectors.
enum class SacdForm
{
    plain14,   ///< three frames in 14 sectors
    plain16,   ///< three frames in 16 sectors
    dstStored, ///< DST frames that hold the bits as they are
    dstCoded,  ///< DST frames from the small encoder
};

struct SacdTrackRecipe
{
    int startFrame = 0; ///< 1/75 s from the area's start
    int frames = 0;
    std::string title = {}; ///< UTF-8; empty: the disc says none
    std::string performer = {};
};

struct SacdAreaRecipe
{
    bool multichannel = false;
    SacdForm form = SacdForm::plain14;
    DsdSignal signal; ///< all of the area, in whole frames of 1/75 s
    std::vector<SacdTrackRecipe> tracks;
    int numberOffset = 0; ///< the first track's number less one
};

struct SacdRecipe
{
    int sectorBytes = 2048; ///< or 2064
    int characterSet = 2;
    std::string title = "Album";
    std::vector<SacdAreaRecipe> areas; ///< at most one of each kind
};

/// Where the parts of an image stand, in sectors; so that a test can damage them.
struct SacdPlaces
{
    int table = 0; ///< TWOCHTOC or MULCHTOC, with both lists and the text behind it
    int copy = 0;
    int tableSectors = 0;
    int firstAudio = 0;
    int lastAudio = 0;
};

struct SacdImageMade
{
    std::vector<uint8_t> bytes;
    std::vector<SacdPlaces> areas; ///< as in the recipe
    int sectorBytes = 2048;

    /// Where a byte of a sector stands in the file.
    size_t at(int sector, size_t byte = 0) const
    {
        const size_t head = sectorBytes == 2064 ? 12 : 0;
        return static_cast<size_t>(sector) * static_cast<size_t>(sectorBytes) + head + byte;
    }
};

/// A small valid image.
SacdImageMade makeSacd(const SacdRecipe &recipe);

/// An area of `tracks` tracks of the same length, one behind the other, named "Track 1", "Track 2" …
/// prefix: what stands for "Track" in the titles.
SacdAreaRecipe plainArea(SacdForm form, int tracks, int framesOfATrack, int channels = 2, uint32_t seed = 1,
                         SignalShape shape = SignalShape::noise, const std::string &prefix = "Track");

} // namespace kelp_test
