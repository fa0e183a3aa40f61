#include "engine/audible_effects.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr double audibleGainDb = 0.05;
constexpr double audibleOffset = 0.5;

bool audibleGain(double gainDb)
{
    return std::abs(gainDb) > audibleGainDb;
}

} // namespace

bool effectsWantPcm(const AudibleEffectsFacts &facts)
{
    const bool reverb = facts.reverbOn && facts.reverbWet > 0.;
    const bool tone = facts.toneOn && (audibleGain(facts.bassGainDb) || audibleGain(facts.trebleGainDb));
    const bool equalizer =
        facts.equalizerOn && (audibleGain(facts.preampDb) ||
                              std::any_of(facts.bandGainsDb.begin(), facts.bandGainsDb.end(), audibleGain));
    return reverb || tone || equalizer || facts.denoiseTier > 0 ||
           std::abs(facts.balance - 50.) > audibleOffset || std::abs(facts.width - 100.) > audibleOffset;
}
