#pragma once

#include <string>

namespace kelp_core {

/// What a probe answers. Plain value.
struct ProbeAnswer
{
    int code = 0;     ///< the exit code of the program form
    std::string text; ///< UTF-8, whole lines
};

/// Writes the text to standard output; returns the code.
int printAnswer(const ProbeAnswer &answer);

} // namespace kelp_core
