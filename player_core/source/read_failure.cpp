#include "player_core/source/read_failure.h"

#include <algorithm>
#include <cstdio>

namespace kelp_core {
namespace {

/// Seconds with a point, whatever the locale: the C library's printf would follow it.
std::string seconds(const SourceFacts &facts, int64_t frames)
{
    const int64_t perSecond = std::max<int64_t>(facts.format.framesPerSecond(), 1);
    const int64_t milliseconds = frames / perSecond * 1000 + frames % perSecond * 1000 / perSecond;
    char text[48];
    std::snprintf(text, sizeof text, "%lld.%03lld s", static_cast<long long>(milliseconds / 1000),
                  static_cast<long long>(milliseconds % 1000));
    return text;
}

} // namespace

ReadOutcome endedEarly(const SourceFacts &facts, int64_t position)
{
    return {ReadStatus::failed,
            "ended after " + seconds(facts, position) + " of " + seconds(facts, facts.totalFrames)};
}

ReadOutcome damagedAt(const SourceFacts &facts, int64_t position, const std::string &what)
{
    return {ReadStatus::failed, "damaged at " + seconds(facts, position) + ": " + what};
}

} // namespace kelp_core
