#include "player_core/probe/device_answers.h"

#include "player_core/output/device_probes.h"

namespace kelp_core {

namespace {

constexpr Probe probes[] = {
    {"-list",
     [](const std::vector<std::string> &) {
         return ProbeAnswer{0, listText()};
     }},
    {"-list-devices",
     [](const std::vector<std::string> &) {
         return ProbeAnswer{0, listDevicesText()};
     }},
    {"-vol-get",
     [](const std::vector<std::string> &args) {
         return ProbeAnswer{0, volGetText(operandOf(args, "-dev"))};
     }},
    {"-reset-device",
     [](const std::vector<std::string> &) {
         return ProbeAnswer{0, resetDevice()};
     }},
};

} // namespace

std::optional<ProbeAnswer> answerDeviceProbe(const std::vector<std::string> &args)
{
    return answerFrom(probes, args);
}

} // namespace kelp_core
