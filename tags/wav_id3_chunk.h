/// \file
/// Where the ID3 chunk of a WAV file stands.
#pragma once

#include <cstdint>
#include <string>

/// \param offset of the chunk's header; 0 when the file has audio data and no "ID3 " chunk
/// \param size of the chunk with its header of 8 bytes and its pad byte, as the header says: it may pass the
///        end of a damaged file
/// \param error may be null; see readFlacBlocks()
/// \return false when the file cannot be read, is no RIFF file, or has neither "data" nor "ID3 "
[[nodiscard]] bool findWavId3Chunk(const std::string &path, uint64_t &offset, uint64_t &size,
                                   std::string *error);
