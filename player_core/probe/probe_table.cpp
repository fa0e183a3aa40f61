#include "player_core/probe/probe_table.h"

#include "player_core/probe/device_answers.h"

namespace kelp_core {

namespace {

/// A question that a host may ask and that this engine has no answer for yet.
ProbeAnswer notYet(const std::vector<std::string> &args)
{
    return {2, "This engine cannot answer " + args.front() + " yet.\n"};
}

constexpr Probe probes[] = {
    {"-dsd-caps", notYet}, {"-iso-list", notYet},  {"-analyze", notYet},  {"-fingerprint", notYet},
    {"-scan", notYet},     {"-check-ext", notYet}, {"-rig-info", notYet},
};

} // namespace

std::optional<ProbeAnswer> answerProbe(const std::vector<std::string> &args)
{
    const auto answer = answerDeviceProbe(args);
    return answer ? answer : answerFrom(probes, args);
}

ProbeAnswer unknownProbe(const std::vector<std::string> &args)
{
    if (args.empty())
        return {2, "No question was asked.\n"};
    return {2, "\"" + args.front() + "\" is no question this engine knows.\n"};
}

} // namespace kelp_core
