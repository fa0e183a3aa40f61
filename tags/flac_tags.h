/// \file
/// The exact reader of FLAC's metadata blocks and their tags.
#pragma once

#include "tags/tag_set.h"

#include <cstdint>
#include <string>
#include <vector>

struct FlacBlock
{
    static constexpr int streamInfo = 0;
    static constexpr int padding = 1;
    static constexpr int vorbisComment = 4;

    int type = 0; ///< 0 … 127
    std::vector<uint8_t> bytes;
};

struct FlacBlocks
{
    bool hasStreamInfo = false;
    std::vector<uint8_t> streamInfo; ///< the first block of type 0
    std::vector<FlacBlock> others;   ///< all other blocks, in the file's order
    uint64_t audioStart = 0;         ///< the byte behind the last block
};

/// Reads all metadata blocks, of any size.
/// \param blocks set anew
/// \param error may be null; on failure a sentence in the program's source language, UTF-8. It reaches people
///        only inside reports and is not translated.
[[nodiscard]] bool readFlacBlocks(const std::string &path, FlacBlocks &blocks, std::string *error);

/// Reads the tags of every Vorbis comment block; a later value of a field overwrites an earlier one.
/// A malformed block gives fewer fields and is no error.
/// \param tags set anew
[[nodiscard]] bool readFlacTags(const std::string &path, TagSet &tags, std::string *error = nullptr);
