#include "player_core/session/tuning_items.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/dsp/volume.h"

#include <algorithm>

namespace kelp_core {

StageItem speedItem(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    if (t.changesSpeed())
        return {stage_name::speed, Proof::broken, "the speed is changed to " + speedText(t.speed)};
    if (t.toDsd && f.speedWanted.active())
        return {stage_name::speed, Proof::kept,
                "1.00x, the " + ratioText(f.speedWanted.ratio) +
                    " that was asked for does not act on DSD that goes out directly"};
    return {stage_name::speed, Proof::kept, "1.00x, no stage for another speed is in the chain"};
}

StageItem replayGainItem(const ChainFacts &f)
{
    const std::string decided = f.replayGain.empty() ? "" : " (" + f.replayGain + ')';
    if (f.replayGainFactor != 1.0)
        return {stage_name::replayGain, Proof::broken,
                "ReplayGain scales the samples by " + fixedText(decibels(f.replayGainFactor), 2) + " dB" +
                    decided};
    if (f.replayGain.empty())
        return {stage_name::replayGain, Proof::kept, "off"};
    return {stage_name::replayGain, Proof::kept, "on, but it scales nothing" + decided};
}

StageItem guardItem(const ChainFacts &f)
{
    if (f.guardedFrames > 0)
        return {stage_name::guard, Proof::broken, "the peak guard " + guardedText(f)};
    if (!f.guard)
        return {stage_name::guard, Proof::kept, "off"};
    if (f.transform.toDsd)
        return {stage_name::guard, Proof::kept, "on, but it does not act on DSD that goes out directly"};
    return {stage_name::guard, Proof::kept, "on, and no sample of this track has needed it"};
}

std::optional<StageItem> loopItem(const ChainFacts &f)
{
    if (!f.looping)
        return std::nullopt;
    return StageItem{stage_name::loop, Proof::kept,
                     "a part of the track is repeated, its frames themselves are not touched"};
}

std::string ratioText(double ratio)
{
    return fixedText(ratio, 2) + "x";
}

std::string speedText(const SpeedPlan &speed)
{
    return ratioText(speed.ratio) +
           (speed.pitchKept ? ", pitch kept (time stretching)" : ", pitch goes along (resampling)");
}

std::string guardedText(const ChainFacts &f)
{
    return "has brought " + std::to_string(f.guardedFrames) + " frames of this track down, by up to " +
           fixedText(std::max(0.01, -decibels(f.guardGain)), 2) + " dB";
}

} // namespace kelp_core
