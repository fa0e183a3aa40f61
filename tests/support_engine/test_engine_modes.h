// What the test engine can do: the word behind -test, and its operand.
#pragma once

#include "support_engine/test_engine_control.h"

#include <string>

namespace test_engine {

using Mode = int (*)(Control &control, const std::string &operand);

// Null for an unknown name.
Mode findMode(const std::string &name);

} // namespace test_engine
