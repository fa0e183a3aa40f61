/// \file
/// Finding a word in tens of thousands of bytes that mostly do not hold it.
#pragma once

#include "tags/byte_view.h"

/// Where the word, of two characters at least, stands for the first time at or behind from.
[[nodiscard]] std::optional<uint64_t> findWord(ByteView bytes, std::string_view word, uint64_t from = 0);
