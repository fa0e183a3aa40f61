#pragma once

#include "player_core/source/dsd_layout.h"
#include "player_core/source/file_input.h"
#include "player_core/source/source.h"

#include <memory>

namespace kelp_core {

/// What a DSD file is, in words and numbers.
SourceFacts dsdFacts(const DsdLayout &layout);

/// A source over plain DSD; takes the file.
std::unique_ptr<Source> makeDsdSource(std::unique_ptr<FileInput> file, const DsdLayout &layout);

/// A source over DST frames; takes the file.
std::unique_ptr<Source> makeDstSource(std::unique_ptr<FileInput> file, const DsdLayout &layout);

} // namespace kelp_core
