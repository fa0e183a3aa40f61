#pragma once

#include "player_core/audio/gain_tags.h"

#include <string_view>

struct AVFormatContext;

namespace kelp_core {

/// Takes a tag's key and value where they are ReplayGain's ("REPLAYGAIN_TRACK_GAIN" with "-7.30 dB", its
/// album and peak fellows, whatever their case) or those of RFC 7845 ("R128_TRACK_GAIN", 1/256 dB to −23
/// LUFS, told here as ReplayGain counts). The first value of a kind stands; ReplayGain's goes before the
/// other. What is not a number, or beyond ±60 dB or a peak of 0 … 64, is left aside.
void takeGainTag(std::string_view key, std::string_view value, GainTags &tags);

/// All of a container's tags, of the whole and of its audio stream.
GainTags gainTagsOf(const AVFormatContext &container, int audioStream);

} // namespace kelp_core
