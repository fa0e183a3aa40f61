#include "player_core/session/verify_report.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/dsp/volume.h"
#include "player_core/session/output_lines.h"
#include "player_core/session/tuning_items.h"

#include <algorithm>

namespace kelp_core {

namespace {

StageItem kept(const char *name, std::string reason)
{
    return {name, Proof::kept, std::move(reason)};
}

StageItem broken(const char *name, std::string reason)
{
    return {name, Proof::broken, std::move(reason)};
}

std::string hertz(int rateHz)
{
    return std::to_string(rateHz) + " Hz";
}

bool isPcm(const ChainFacts &f)
{
    return f.output.wire.carrier == Carrier::pcm;
}

StageItem sourceItem(const ChainFacts &f)
{
    if (!f.failure.empty())
        return broken(stage_name::source, "its rest could not be read: " + f.failure);
    if (!f.source.lossless)
        return broken(stage_name::source,
                      f.source.description + ": the coding is lossy, so the original samples are gone");
    const bool asItIs = f.transform.toDsd && !f.source.dst;
    return kept(stage_name::source,
                f.source.description + (asItIs ? ": " : ": decoded, ") + "the coding is lossless");
}

StageItem decodingItem(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    if (t.decodesDsd())
        return broken(stage_name::decoding,
                      dsdName(t.from.rateHz) + " is decoded to PCM at " + hertz(t.decodedRateHz()));
    return kept(stage_name::decoding, t.from.isDsd() ? dsdName(t.from.rateHz) + " goes on as DSD, bit for bit"
                                                     : "the source is PCM, so there is none to decode");
}

StageItem resamplerItem(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    if (t.resamples())
        return broken(stage_name::resampler,
                      "the rate is converted from " + hertz(t.decodedRateHz()) + " to " + hertz(t.toRateHz));
    return kept(stage_name::resampler, "not in the chain");
}

StageItem channelItem(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    const std::string from = std::to_string(t.from.channels);
    const std::string to = std::to_string(t.toChannels);
    if (t.mapsChannels())
        return broken(stage_name::channels, from + " channels are mapped to " + to);
    if (!f.output.speakerOrder.empty())
        return kept(stage_name::channels,
                    from + " in, " + to + " out, each to its speaker (" + f.output.speakerOrder + ")");
    return kept(stage_name::channels, from + " in, " + to + " out, in their order");
}

StageItem volumeItem(const ChainFacts &f)
{
    if (f.volume.place != VolumePlace::software)
        return kept(stage_name::volume, f.volume.place == VolumePlace::device
                                            ? "set on the device, the samples are not scaled"
                                            : "a DSD stream is not scaled");
    // ReplayGain's part of the gain has an item of its own.
    if (f.volume.gain != f.replayGainFactor)
        return broken(stage_name::volume, "the volume stage scales the samples by " +
                                              fixedText(decibels(f.volume.gain / f.replayGainFactor), 2) +
                                              " dB");
    if (f.scaledFrames > 0)
        return kept(stage_name::volume, "unity, the samples are not scaled now; " +
                                            std::to_string(f.scaledFrames) +
                                            " earlier frames of this track were");
    return kept(stage_name::volume,
                "unity, it scaled none of the " + std::to_string(f.trackFrames) + " frames so far");
}

StageItem crossfadeItem(const ChainFacts &f)
{
    if (f.mixing)
        return broken(stage_name::crossfade, "two tracks are being mixed");
    if (f.paused && f.fading)
        return broken(stage_name::crossfade,
                      "the last samples were faded out for the pause; check again while it plays");
    if (f.fading)
        return broken(stage_name::crossfade, "a fade is under way");
    return kept(stage_name::crossfade, "no track is mixed with another, no fade is under way");
}

StageItem clippingItem(const ChainFacts &f)
{
    if (!isPcm(f))
        return kept(stage_name::clipping, "a DSD stream cannot clip");
    if (f.clippedSamples > 0)
        return broken(stage_name::clipping,
                      std::to_string(f.clippedSamples) +
                          (f.clippedSamples == 1 ? " sample of this track passed full scale and was cut"
                                                 : " samples of this track passed full scale and were cut"));
    return kept(stage_name::clipping, "no sample of this track was cut");
}

StageItem depthItem(const ChainFacts &f)
{
    const WireFormat &wire = f.output.wire;
    const StreamFormat &from = f.source.format;
    if (wire.carrier != Carrier::pcm)
        return kept(stage_name::depth, "the DSD bits are packed, not rounded");
    const bool floatWire = wire.encoding == SampleEncoding::f32;
    // Single floats carry the 24 bits of their mantissa.
    const int room = floatWire ? 24 : wire.validBits;
    const std::string bits = std::to_string(room) + " bits";
    const bool fits = from.isFloat ? floatWire && from.depthBits <= 32 : from.depthBits <= room;
    if (!fits)
        return broken(stage_name::depth, "the device takes " + bits + " of the source's " +
                                             std::to_string(from.depthBits) +
                                             (from.isFloat ? " in floats" : ""));
    if (f.dithered)
        return broken(stage_name::depth,
                      "what an earlier stage changed is rounded to " + bits + ", with dither");
    if (from.isDsd() || from.isFloat)
        return kept(stage_name::depth, "the device takes the samples without rounding");
    return kept(stage_name::depth, "all " + std::to_string(from.depthBits) + " bits fit the device's " +
                                       std::to_string(room) + ", no dither");
}

StageItem mixerItem(const ChainFacts &f)
{
    if (f.output.mixer)
        return broken(stage_name::mixer, "the sound server's mixer stands in the way");
    return kept(stage_name::mixer, f.output.exclusive ? "the device is ours alone, no mixer stands behind us"
                                                      : "no mixer is known to stand behind us");
}

StageItem conversionItem(const ChainFacts &f)
{
    if (f.output.readBack.known && !readBackAgrees(f.output))
        return broken(stage_name::conversion, "the device runs at " + readBackText(f.output.readBack));
    if (f.output.converts)
        return broken(stage_name::conversion, "rate or format are converted behind us");
    return kept(stage_name::conversion, "none is known");
}

StageItem deliveryItem(const ChainFacts &f)
{
    const ReadBack &back = f.output.readBack;
    if (!back.known)
        return {stage_name::delivery, Proof::unknown,
                "what the hardware runs at cannot be read back, so what reached it is not shown"};
    if (!readBackAgrees(f.output))
        return broken(stage_name::delivery,
                      "the " + back.origin + " shows " + readBackText(back) + ", not what was handed over");
    return kept(stage_name::delivery,
                "the " + back.origin + " shows " + readBackText(back) + ", as was handed over");
}

StageItem underrunItem(const ChainFacts &f)
{
    if (f.trackUnderruns > 0)
        return broken(stage_name::underruns, "the device ran dry " + std::to_string(f.trackUnderruns) +
                                                 (f.trackUnderruns == 1 ? " time" : " times") +
                                                 " in this track, so there were gaps");
    return kept(stage_name::underruns, "none in this track");
}

} // namespace

std::vector<StageItem> verifyItems(const ChainFacts &f)
{
    std::vector<StageItem> items = {
        sourceItem(f),     decodingItem(f),   resamplerItem(f),
        speedItem(f),      channelItem(f),    kept(stage_name::effects, "none is in the chain"),
        replayGainItem(f), volumeItem(f),     crossfadeItem(f),
        guardItem(f),      clippingItem(f),   depthItem(f),
        mixerItem(f),      conversionItem(f), deliveryItem(f),
        underrunItem(f)};
    const auto named = [&items](const std::string &name) {
        return std::find_if(items.begin(), items.end(), [&](const StageItem &i) { return i.name == name; });
    };
    if (auto loop = loopItem(f))
        items.insert(named(stage_name::clipping), *std::move(loop));
    for (const StageItem &own : f.stages) {
        if (const auto at = named(own.name); at != items.end())
            *at = own;
        else
            items.insert(named(stage_name::clipping), own);
    }
    return items;
}

const StageItem *firstObjection(const std::vector<StageItem> &items)
{
    for (const Proof proof : {Proof::broken, Proof::unknown}) {
        const auto at = std::find_if(items.begin(), items.end(),
                                     [proof](const StageItem &i) { return i.proof == proof; });
        if (at != items.end())
            return &*at;
    }
    return nullptr;
}

std::vector<std::string> verifyReport(const ChainFacts &facts)
{
    const std::vector<StageItem> items = verifyItems(facts);
    std::vector<std::string> lines;
    for (const StageItem &item : items) {
        const char *unknown = item.proof == Proof::unknown ? "not known: " : "";
        lines.push_back("verify: " + item.name + (item.proof == Proof::kept ? " ok -- " : " FAIL -- ") +
                        unknown + oneLine(item.reason));
    }
    const StageItem *objection = firstObjection(items);
    if (!objection)
        lines.push_back("verify: verdict BITPERFECT=1 | all " + std::to_string(items.size()) +
                        " stages keep every sample as it is");
    else
        lines.push_back("verify: verdict BITPERFECT=0 | " + objection->name + ": " +
                        (objection->proof == Proof::unknown ? "not known: " : "") +
                        oneLine(objection->reason));
    return lines;
}

std::string verifyNothing()
{
    return "verify: verdict BITPERFECT=0 | nothing plays, so there is nothing to judge";
}

} // namespace kelp_core
