#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace kelp_core {

/// What a probe answers. Plain value.
struct ProbeAnswer
{
    int code = 0;     ///< the exit code of the program form
    std::string text; ///< UTF-8, whole lines
};

/// Writes the text to standard output; returns the code.
int printAnswer(const ProbeAnswer &answer);

/// One row of a table of probes. args holds what stands behind the program's name, the flag first.
struct Probe
{
    std::string_view flag;
    ProbeAnswer (*answer)(const std::vector<std::string> &args);
};

/// The answer of the row that the first argument names; nothing when there is none.
std::optional<ProbeAnswer> answerFrom(std::span<const Probe> probes, const std::vector<std::string> &args);

/// The operand behind a flag, or an empty text.
std::string operandOf(const std::vector<std::string> &args, std::string_view flag);

} // namespace kelp_core
