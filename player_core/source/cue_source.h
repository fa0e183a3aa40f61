#pragma once

#include "player_core/source/cue_sheet.h"
#include "player_core/source/source.h"

#include <optional>
#include <string>

namespace kelp_core {

/// Reads and parses a sheet's file; nothing with one line in error.
std::optional<CueSheet> loadCueSheet(const std::string &path, std::string &error);

/// Opens one track of a sheet, or with a track below 1 all of it as one source with segments.
OpenedSource openCue(const SourceRequest &request);

/// Opens the audio file of a sheet as a whole.
OpenedSource openCueAudio(const std::string &folder, const CueFile &file, const SourceRequest &request);

} // namespace kelp_core
