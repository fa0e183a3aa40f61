#include "player_core/output/volume_line.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kelp_core {
namespace {

constexpr double unityToleranceDb = 0.005;

const char *word(const std::optional<bool> &value)
{
    if (!value)
        return "unknown";
    return *value ? "yes" : "no";
}

} // namespace

std::string deviceVolumeLine(const DeviceVolumeFacts &facts)
{
    std::string control = facts.control;
    std::replace_if(
        control.begin(), control.end(),
        [](char c) { return c == '"' || static_cast<unsigned char>(c) < ' '; }, ' ');
    char db[32] = "unknown";
    std::optional<bool> unity;
    if (facts.db) {
        std::snprintf(db, sizeof db, "%.2f", *facts.db);
        unity = std::abs(*facts.db) < unityToleranceDb;
    }
    return "VOL " + facts.device + " \"" + control +
           "\" percent=" + (facts.percent ? std::to_string(*facts.percent) : "unknown") + " db=" + db +
           " muted=" + word(facts.muted) + " unity=" + word(unity) + "\n";
}

std::string volumeNotKnown(const std::string &device, std::string why)
{
    while (why.ends_with('.'))
        why.pop_back();
    return "VOL " + device + " not known: " + why + "\n";
}

} // namespace kelp_core
