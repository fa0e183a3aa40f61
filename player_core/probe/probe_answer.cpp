#include "player_core/probe/probe_answer.h"

#include <unistd.h>

namespace kelp_core {

int printAnswer(const ProbeAnswer &answer)
{
    size_t done = 0;
    while (done < answer.text.size()) {
        const ssize_t n = ::write(STDOUT_FILENO, answer.text.data() + done, answer.text.size() - done);
        if (n <= 0)
            break;
        done += static_cast<size_t>(n);
    }
    return answer.code;
}

std::optional<ProbeAnswer> answerFrom(std::span<const Probe> probes, const std::vector<std::string> &args)
{
    for (const Probe &probe : probes) {
        if (!args.empty() && probe.flag == args.front())
            return probe.answer(args);
    }
    return std::nullopt;
}

std::string operandOf(const std::vector<std::string> &args, std::string_view flag)
{
    for (size_t i = 0; i + 1 < args.size(); ++i) {
        if (args[i] == flag)
            return args[i + 1];
    }
    return {};
}

} // namespace kelp_core
