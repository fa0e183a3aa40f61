#include "player_core/session/load_plan.h"

namespace kelp_core {

namespace {

constexpr double gaplessWindowSec = 1.5;
constexpr double windowSlackSec = 0.25;

double preloadWindowSec(const LoadFacts &facts)
{
    if (facts.crossfadeSec > 0)
        return facts.crossfadeSec;
    return facts.gapless ? gaplessWindowSec : 0;
}

std::string differs(const char *what, int before, int after, const char *unit)
{
    return std::string(what) + " differs (" + std::to_string(after) + unit + " after " +
           std::to_string(before) + unit + ")";
}

} // namespace

LoadAction planLoad(const LoadFacts &facts)
{
    if (!facts.playing)
        return LoadAction::start;
    const double window = preloadWindowSec(facts);
    if (facts.hasPosition || facts.paused || facts.preloaded || facts.looping || window <= 0 ||
        facts.totalSec < 0)
        return LoadAction::switchNow;
    return facts.totalSec - facts.positionSec <= window + windowSlackSec * facts.speed
               ? LoadAction::preload
               : LoadAction::switchNow;
}

std::string whyNotJoin(const JoinFacts &facts)
{
    const StreamFormat &a = facts.opened;
    const StreamFormat &b = facts.next;
    if (a.kind != b.kind)
        return b.isDsd() ? "DSD cannot follow PCM on the same stream"
                         : "PCM cannot follow DSD on the same stream";
    if (a.rateHz != b.rateHz)
        return differs("the rate", a.rateHz, b.rateHz, " Hz");
    if (a.channels != b.channels)
        return differs("the number of channels", a.channels, b.channels, "");
    if (a.speakers != b.speakers)
        return "the places of the channels differ";
    // A device that was opened deep enough carries shallower samples too; one that already cuts the present
    // track would cut the next one no more than a fresh opening would.
    const bool floatWire = facts.wire.encoding == SampleEncoding::f32;
    if (b.isFloat && !a.isFloat && !floatWire)
        return "floating-point samples cannot follow integers on this device's format";
    if (!b.isDsd() && b.depthBits > facts.wire.validBits && b.depthBits > a.depthBits)
        return differs("the depth", a.depthBits, b.depthBits, " bit");
    return {};
}

} // namespace kelp_core
