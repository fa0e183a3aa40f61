#pragma once

#include "player_core/source/sacd_toc.h"

namespace kelp_core {

/// An area's table, or one line that says what is wrong with it ("its … table is damaged: …").
struct SacdAreaOutcome
{
    std::optional<SacdArea> area;
    bool complete = false; ///< both track lists are there
    std::string error;
    std::vector<std::string> warnings;
};

/// Reads the table that begins at a sector. sizeHint: its length in sectors as the master table has it, used
/// where the table itself says nothing.
SacdAreaOutcome readSacdArea(SacdSectors &sectors, int64_t tableSector, int sizeHint, bool multichannel);

} // namespace kelp_core
