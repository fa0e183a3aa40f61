/// \file
/// The token that a phone has to bring.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

/// Lower-case hexadecimal, eight characters.
std::string remoteTokenText(std::uint32_t random);

/// Exact and case-sensitive. Takes the same time wherever the two differ, so that a token cannot be guessed
/// character by character; only the length of \p given shows. An empty \p expected matches nothing.
bool remoteTokenMatches(std::string_view expected, std::string_view given);
