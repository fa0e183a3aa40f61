#pragma once

#include "player_core/source/cue_sheet.h"

#include <string>
#include <vector>

namespace kelp_core {

/// The absolute path of the folder that a file stands in.
std::string folderOf(const std::string &path);

/// Where the audio file of a sheet really is: as named, else the same name in other case, else the same name
/// with the suffix of another kind (an album packed after the sheet was written). Without any of these the
/// path that the sheet names. Absolute.
std::string findCueAudio(const std::string &folder, const CueFile &file);

/// The names in a folder, sorted, at most some thousands.
std::vector<std::string> namesIn(const std::string &folder);

/// Whether two names are the same but for the case of plain letters.
bool sameButCase(const std::string &one, const std::string &other);

} // namespace kelp_core
