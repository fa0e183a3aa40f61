/// \file
/// Track and title from the name of a file.
#pragma once

#include <string>
#include <string_view>

struct TrackFileName
{
    std::string track; ///< at least two digits, at most four; empty when the name begins with none
    std::string title;

    bool operator==(const TrackFileName &) const = default;
};

/// \param name the file's name without folder and suffix, UTF-8
[[nodiscard]] TrackFileName parseTrackFileName(std::string_view name);
