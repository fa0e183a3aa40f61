#pragma once

#include "player_core/source/content_kind.h"
#include "player_core/source/source.h"

namespace kelp_core {

/// Opens a file of PCM, plain or packed, through FFmpeg's demuxer named in kind.
OpenedSource openPcmFile(const std::string &path, const ContentKind &kind, const SourceRequest &request);

} // namespace kelp_core
