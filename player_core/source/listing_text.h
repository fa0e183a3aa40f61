#pragma once

#include <cstdint>
#include <string>

namespace kelp_core {

/// A text as a field of a listing's line: a tab or line end in it would break the line.
std::string listingField(const std::string &text);

/// Microseconds as seconds with six decimals and a point, whatever the locale.
std::string listingSeconds(int64_t microseconds);

} // namespace kelp_core
