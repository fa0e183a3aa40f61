#pragma once

#include "player_core/source/source.h"

#include <memory>
#include <string>

namespace kelp_core {

/// A part of a source as a source of its own: frames [start, end), end −1 for all that follows. An end behind
/// the whole's is moved there; a start behind it is an error, told of "what" ("track 3"). gains: the
/// part's own.
OpenedSource makeSpanSource(std::unique_ptr<Source> whole, int64_t start, int64_t end,
                            const std::string &what, const GainTags &gains);

} // namespace kelp_core
