#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

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

/// The same for SACD images, whose tracks all have the image's path. `numbers` are those of the image that
/// was handed over, sameImage whether it is the one that plays, playing its track (below 1: all of it). The
/// next track of that image; behind its last one, and for another image, the first. Nothing when there is no
/// track.
[[nodiscard]] std::optional<int> imageSuccessor(const std::vector<int> &numbers, bool sameImage, int playing);

} // namespace kelp_core
