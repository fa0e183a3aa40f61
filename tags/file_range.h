/// \file
/// A range of a file, whole or not at all.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// Reads exactly length bytes from offset on.
/// \param bytes set anew; empty on failure
/// \param error may be null; see readFlacBlocks()
[[nodiscard]] bool readFileRange(const std::string &path, uint64_t offset, uint64_t length,
                                 std::vector<uint8_t> &bytes, std::string *error);
