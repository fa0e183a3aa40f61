#pragma once

#include "player_core/session/chain_report.h"

#include <string>
#include <vector>

namespace kelp_core {

/// Every stage's answer, in the order of the signal. An item in facts.stages takes the place of the one with
/// its name; one with a name of its own stands behind the peak guard, and so
/// does the A/B loop while one is set.
[[nodiscard]] std::vector<StageItem> verifyItems(const ChainFacts &facts);

/// The first item that does not prove its stage harmless: a broken one before one that is only not known.
/// Null when all are kept.
[[nodiscard]] const StageItem *firstObjection(const std::vector<StageItem> &items);

/// The answer to `verify`: "verify: NAME ok -- REASON" or "verify: NAME FAIL -- REASON" for each item, then
/// "verify: verdict BITPERFECT=1 | …", or 0 with the first objection. What is not known fails with a reason
/// that begins with "not known: ".
[[nodiscard]] std::vector<std::string> verifyReport(const ChainFacts &facts);

/// The answer when there is no stream to judge.
[[nodiscard]] std::string verifyNothing();

} // namespace kelp_core
