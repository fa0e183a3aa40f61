#pragma once

#include "player_core/source/source.h"

namespace kelp_core {

/// Opens one audio file as a whole; of the request only the callbacks count.
OpenedSource openAudioFile(const std::string &path, const SourceRequest &request);

} // namespace kelp_core
