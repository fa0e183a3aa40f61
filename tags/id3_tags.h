/// \file
/// The exact reader of ID3v2 tags in WAV, DSF and DFF files: it reads back what this program writes.
#pragma once

#include "tags/tag_set.h"

#include <cstdint>
#include <span>
#include <string>

/// Reads a tag of version 3 or 4 that begins with the bytes given. The text encoding is taken to be UTF-8,
/// because that is what is written; the byte that names it is dropped unseen, and NUL bytes are removed.
/// \return empty fields where there is no tag
[[nodiscard]] TagSet parseId3Tag(std::span<const uint8_t> bytes);

/// Reads the tag of a file, found by the suffix "wav", "dsf" or "dff" in any case.
/// \param tags set anew; empty with true when the file has no tag
/// \param error may be null; see readFlacBlocks()
[[nodiscard]] bool readId3Tags(const std::string &path, TagSet &tags, std::string *error = nullptr);
