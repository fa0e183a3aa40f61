/// \file
/// The number of a disc from names like "CD2" or "Disc 03".
#pragma once

#include <string_view>

/// Reads the first "cd", "disc", "disk" or "dvd" with a number of one or two digits behind it, folder names
/// included. Tags carry no disc number here.
/// \param path UTF-8
/// \return 1 … 99, or 0 when the path names none
[[nodiscard]] int discNumberFromPath(std::string_view path);
