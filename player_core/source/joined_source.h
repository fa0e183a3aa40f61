#pragma once

#include "player_core/source/source.h"

#include <functional>
#include <string>
#include <vector>

namespace kelp_core {

/// Sources of one format that play as one.
struct JoinedParts
{
    std::vector<std::function<OpenedSource()>> openers; ///< one a part; called when its turn comes
    std::vector<int64_t> startFrames;                   ///< one a part
    std::vector<SourceSegment> segments;
    SourceFacts facts; ///< of the first part
    int64_t totalFrames = 0;

    /// Takes a part's facts. Returns "" or a line that says why it does not go with the others.
    std::string add(const SourceFacts &part);
};

/// Opens the first part.
OpenedSource makeJoinedSource(JoinedParts parts);

} // namespace kelp_core
