#pragma once

#include <cstdint>
#include <span>
#include <string>

namespace kelp_core {

/// Writes a file under another name beside it and moves it into place, so that nobody ever sees half of it.
/// Returns "" or a line that says what failed.
std::string writeAtomically(const std::string &path, std::span<const uint8_t> bytes);

} // namespace kelp_core
