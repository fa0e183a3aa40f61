#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace kelp_core {

/// A host hands over the track that follows early by its path alone, also for a track of a CUE sheet, whose
/// path is the audio file: taken by its word, the whole file would follow. While track `track` of a sheet
/// plays, that file means the sheet's next track.
///
/// `listing` is what `-cue-list` prints of the sheet, samePath whether two paths name one file. The number of
/// the next track when `path` is its audio file, else nothing.
[[nodiscard]] std::optional<int>
sheetSuccessor(std::string_view listing, int track, const std::string &path,
               const std::function<bool(const std::string &, const std::string &)> &samePath);

} // namespace kelp_core
