#include "player_core/probe/probe_table.h"

#include <algorithm>
#include <string_view>

namespace kelp_core {

namespace {

struct Probe
{
    std::string_view flag;
    ProbeAnswer (*answer)(const std::vector<std::string> &args);
};

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
    if (args.empty())
        return std::nullopt;
    const auto *probe = std::find_if(std::begin(probes), std::end(probes),
                                     [&](const Probe &p) { return p.flag == args.front(); });
    if (probe == std::end(probes))
        return std::nullopt;
    return probe->answer(args);
}

ProbeAnswer unknownProbe(const std::vector<std::string> &args)
{
    if (args.empty())
        return {2, "No question was asked.\n"};
    return {2, "\"" + args.front() + "\" is no question this engine knows.\n"};
}

} // namespace kelp_core
