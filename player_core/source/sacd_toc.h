#pragma once

#include "player_core/source/sacd_audio_sector.h"
#include "player_core/source/sacd_sectors.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// A track of an area.
struct SacdTrack
{
    int number = 0;           ///< as the disc counts
    int64_t startFrame = 0;   ///< in frames of 1/75 s from the area's start
    int64_t frames = 0;       ///< 1 and more
    std::string title;        ///< UTF-8, one line, may be empty
    std::string performer;    ///< as title
    int64_t firstSector = -1; ///< where the disc says that it begins; −1 when it does not

    int64_t endFrame() const { return startFrame + frames; }
};

/// One of the two recordings of a disc: stereo, or of more channels.
struct SacdArea
{
    bool multichannel = false;
    bool dst = false; ///< packed
    int channels = 0;
    int rateHz = 0;                ///< bits a second of one channel
    int sectorsOfThree = 14;       ///< sectors that three plain frames take; of no meaning with dst
    int64_t firstSector = 0;       ///< of the audio
    int64_t lastSector = 0;        ///< the last one, within the image
    std::vector<SacdTrack> tracks; ///< in the disc's order, at least one

    int64_t startFrame() const; ///< of the earliest track
    int64_t endFrame() const;   ///< of the latest track
    const SacdTrack *find(int number) const;
};

/// What the tables of an image say.
struct SacdImage
{
    int storedBytes = 0;               ///< of a sector in the file: 2048 or 2064
    std::string title;                 ///< of the album, else of the disc; UTF-8, one line, may be empty
    SacdArea area;                     ///< the one that is played: stereo where it can be read
    std::string choice;                ///< a sentence on why this area is played
    std::vector<std::string> warnings; ///< one line each: what is damaged and was left out
};

/// An image, or one line that says why there is none.
struct SacdOutcome
{
    std::optional<SacdImage> image;
    std::string error;
};

/// Reads the tables of an SACD image, at most a few MiB wherever they claim to be. A damaged copy of a table
/// is replaced by the next one.
SacdOutcome readSacdImage(ByteInput &input);

} // namespace kelp_core
