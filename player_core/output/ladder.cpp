#include "player_core/output/ladder.h"

#include "player_core/output/alsa_name.h"

namespace kelp_core {
namespace {

constexpr const char *pulseId = "pulse";
constexpr const char *pulsePrefix = "pulse:";
constexpr size_t pulsePrefixLength = 6;

} // namespace

bool isPulseId(const std::string &deviceId)
{
    return deviceId == pulseId || deviceId.starts_with(pulsePrefix);
}

std::vector<Rung> planRungs(PathPolicy path, const std::string &deviceId, const std::string &firstHardware)
{
    using enum Rung::Kind;
    const bool exclusive = path == PathPolicy::exclusive;
    if (deviceId.empty()) {
        if (!exclusive)
            return {{pulse, ""}, {alsaAny, "default"}, {clockedNull, ""}};
        return firstHardware.empty() ? std::vector<Rung>{} : std::vector<Rung>{{alsaExact, firstHardware}};
    }
    if (isPulseId(deviceId)) {
        if (exclusive)
            return {};
        return {{pulse, deviceId == pulseId ? "" : deviceId.substr(pulsePrefixLength)}};
    }
    if (exclusive)
        return {{alsaExact, deviceId}};
    const auto hardware = parseHardwareName(deviceId);
    if (!hardware || hardware->plug)
        return {{alsaAny, deviceId}};
    const std::string plug = "plughw:" + hardware->place;
    // The shared path leaves the card to the server, so that other programs are heard too.
    if (path == PathPolicy::shared)
        return {{pulseCard, deviceId}, {alsaAny, plug}};
    return {{alsaExact, deviceId}, {alsaAny, plug}, {pulseCard, deviceId}};
}

} // namespace kelp_core
