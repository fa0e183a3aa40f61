#pragma once

#include "player_core/audio/gain_tags.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_core {

/// Times in a sheet count frames of a CD: 1/75 s.
inline constexpr int cueFramesPerSecond = 75;

/// A FILE line.
struct CueFile
{
    std::string name;    ///< UTF-8
    std::string rawName; ///< the bytes that stood in the sheet, for names that the disk holds in them
    std::string type;    ///< upper case: WAVE, AIFF, MP3, BINARY, MOTOROLA, …
};

/// A TRACK and what belongs to it.
struct CueTrack
{
    int number = 0;
    std::string mode; ///< upper case: AUDIO, MODE1/2352, …
    std::string title;
    std::string performer;
    std::string isrc;
    std::string flags;
    size_t file = 0;                          ///< where its INDEX 01 stands
    std::optional<int64_t> pregapStartFrames; ///< INDEX 00, wherever it stands
    std::optional<int64_t> startFrames;       ///< INDEX 01
    int64_t pregapFrames = 0;                 ///< PREGAP: silence that no file holds
    int64_t postgapFrames = 0;                ///< POSTGAP
    GainTags gains;                           ///< REM REPLAYGAIN_TRACK_…

    bool isAudio() const { return mode == "AUDIO"; }
};

struct CueSheet
{
    std::string title;
    std::string performer;
    std::string catalog;
    GainTags gains;                 ///< REM REPLAYGAIN_ALBUM_…
    const char *encoding = "UTF-8"; ///< what the text was taken for
    std::vector<CueFile> files;
    std::vector<CueTrack> tracks; ///< in the sheet's order
};

/// Bytes of the longest sheet that is read.
inline constexpr size_t maxCueBytes = 1 << 20;

/// Reads a sheet of any usual encoding and line end. Unknown lines are passed over; nothing when there is no
/// track with a time.
std::optional<CueSheet> parseCueSheet(std::string_view bytes);

/// One track's place in its file.
struct CueSpan
{
    int number = 0;
    std::string title;
    std::string performer; ///< the album's where the track names none
    size_t file = 0;
    int64_t startFrames = 0; ///< 1/75 s from the file's start
    int64_t endFrames = -1;  ///< −1: to the end of the file
};

/// The audio tracks. Each goes from its INDEX 01 to the next one's in the same file, so that a pre-gap
/// belongs to the end of the track before it.
std::vector<CueSpan> cueSpans(const CueSheet &sheet);

/// A time of a sheet in frames of a stream, rounded once.
int64_t cueTimeToFrames(int64_t cueFrames, int64_t framesPerSecond);

} // namespace kelp_core
