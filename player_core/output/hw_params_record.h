#pragma once

#include "player_core/output/output.h"

#include <string>
#include <string_view>

namespace kelp_core {

/// Reads the kernel's record of a hardware PCM, the text of /proc/asound/cardC/pcmDp/subS/hw_params. A closed
/// PCM, a missing field or a number out of range gives a record that is not known.
ReadBack parseHwParams(std::string_view text, const std::string &path);

/// Reads that record of a card's playback device from the running kernel. The root is /proc/asound but in
/// tests.
ReadBack readHwParams(int card, int device, int subdevice, const std::string &procRoot = "/proc/asound");

} // namespace kelp_core
