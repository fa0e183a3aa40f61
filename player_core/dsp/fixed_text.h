#pragma once

#include <string>

namespace kelp_core {

/// A number with a fixed count of decimals and a point. Not printf: the engine may live in a process whose
/// locale writes a comma. A value that rounds to zero has no minus sign.
std::string fixedText(double value, int decimals);

} // namespace kelp_core
