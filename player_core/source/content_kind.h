#pragma once

#include "player_core/source/byte_input.h"

#include <cstdint>
#include <string>

namespace kelp_core {

/// Who reads a file.
enum class ContentReader
{
    none,      ///< nobody: refusal says why
    container, ///< FFmpeg's demuxer of the given name
    dsf,
    dff,
    wsd,
    sacd, ///< an image of a disc
};

/// What a file's first bytes say it is.
struct ContentKind
{
    ContentReader reader = ContentReader::none;
    const char *demuxer = "";  ///< FFmpeg's name, for container
    const char *options = "";  ///< for the demuxer, "key=value:key=value"
    const char *word = "";     ///< the word of the SRC line for uncompressed PCM in it, and of DSD "dsd"
    const char *name = "";     ///< for people: "WAV", "DSF", …
    std::string refusal;       ///< one line, for none
    int64_t contentOffset = 0; ///< where the content begins, behind an ID3v2 tag
};

/// Looks at the first bytes of a file, at most a few hundred KiB of it. The file's name plays no part.
ContentKind detectContent(ByteInput &input);

/// Bytes that an ID3v2 tag takes at the given place, its head included; 0 when there is none.
int64_t id3v2SizeAt(ByteInput &input, int64_t offset);

} // namespace kelp_core
