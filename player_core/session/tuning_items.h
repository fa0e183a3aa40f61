#pragma once

#include "player_core/session/chain_report.h"

#include <optional>
#include <string>

namespace kelp_core {

/// What the stages say for `verify` that are only in the chain when the listener wants them.

[[nodiscard]] StageItem speedItem(const ChainFacts &facts);
[[nodiscard]] StageItem replayGainItem(const ChainFacts &facts);

/// A guard that is on and idle changes nothing. One that has acted in this track has changed it, also when it
/// is off by now.
[[nodiscard]] StageItem guardItem(const ChainFacts &facts);

/// Only while a loop is set. It repeats frames and changes none, so it breaks nothing.
[[nodiscard]] std::optional<StageItem> loopItem(const ChainFacts &facts);

/// "1.50x".
[[nodiscard]] std::string ratioText(double ratio);

/// "1.50x, pitch kept (time stretching)".
[[nodiscard]] std::string speedText(const SpeedPlan &speed);

/// "has brought 12 frames of this track down, by up to 6.02 dB".
[[nodiscard]] std::string guardedText(const ChainFacts &facts);

} // namespace kelp_core
