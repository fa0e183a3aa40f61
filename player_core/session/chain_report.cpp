#include "player_core/session/chain_report.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/session/output_lines.h"
#include "player_core/session/tuning_items.h"
#include "player_core/session/verify_report.h"

#include <algorithm>
#include <array>

namespace kelp_core {

namespace {

std::string rateText(int rateHz)
{
    return std::to_string(rateHz) + " Hz";
}

/// The stages whose word is not on what we do to the samples: what came to us, and what lies behind us.
constexpr std::array notOurs = {stage_name::source, stage_name::mixer, stage_name::conversion,
                                stage_name::delivery, stage_name::underruns};

/// The first of our stages that changes bits, in the order of the signal; empty when none does. Taken from
/// the items of `verify`, so that the two cannot disagree.
std::string firstOwnChange(const ChainFacts &f)
{
    for (const StageItem &item : verifyItems(f)) {
        const bool ours = std::find(notOurs.begin(), notOurs.end(), item.name) == notOurs.end();
        if (ours && item.proof != Proof::kept)
            return oneLine(item.reason);
    }
    return {};
}

/// What stands between us and the hardware and changes bits; empty when nothing is known to.
std::string behindUs(const ChainFacts &f)
{
    const OpenedOutput &o = f.output;
    if (o.readBack.known && !readBackAgrees(o))
        return "the device runs at " + readBackText(o.readBack);
    if (o.converts)
        return "rate or format are converted behind us";
    if (o.mixer)
        return "the sound server's mixer stands in the way";
    return {};
}

std::string sourceFormatText(const ChainFacts &f)
{
    return f.source.description + (f.source.lossless ? " (lossless)" : " (lossy coding)") +
           (f.source.dst ? ", DST" : "");
}

std::string backendText(const OpenedOutput &o)
{
    std::string text = o.backend + ", device " + o.device;
    if (!o.deviceLabel.empty() && o.deviceLabel != o.device)
        text += " (" + o.deviceLabel + ')';
    if (o.mixer)
        return text + ", through a mixer";
    return text + (o.exclusive ? ", exclusive" : "");
}

std::string carrierText(Carrier carrier)
{
    switch (carrier) {
    case Carrier::pcm:
        return "PCM";
    case Carrier::dop:
        return "DoP";
    case Carrier::nativeDsd:
        return "native DSD";
    }
    return {};
}

std::string outputFormatText(const OpenedOutput &o)
{
    const std::string sent = carrierText(o.wire.carrier) + ' ' + rateText(o.wire.frameRateHz) + ' ' +
                             encodingName(o.wire.encoding) + ' ' + std::to_string(o.wire.channels) +
                             " channels";
    if (!o.readBack.known)
        return sent + " handed over; what the hardware runs at is not known";
    return sent + "; read back from the " + o.readBack.origin + ": " + readBackText(o.readBack);
}

std::string dspText(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    std::vector<std::string> active;
    if (t.decodesDsd())
        active.push_back(dsdName(t.from.rateHz) + " to PCM at " + rateText(t.decodedRateHz()) + ", filter " +
                         pdmFilterName(t.filter));
    if (t.resamples())
        active.push_back("resampling to " + rateText(t.toRateHz) + ", quality " +
                         resampleQualityName(t.quality));
    if (t.mapsChannels())
        active.push_back("channel mapping " + std::to_string(t.from.channels) + " to " +
                         std::to_string(t.toChannels));
    if (t.changesSpeed())
        active.push_back("speed " + ratioText(t.speed.ratio) +
                         (t.speed.pitchKept ? " by time stretching" : " by resampling"));
    if (f.replayGainFactor != 1.0)
        active.push_back("ReplayGain, " + f.replayGain);
    if (f.guardedFrames > 0)
        active.push_back("the peak guard " + guardedText(f));
    std::string text = active.empty() ? "none (samples pass through untouched)" : "ACTIVE: ";
    for (size_t i = 0; i < active.size(); ++i)
        text += (i ? "; " : "") + active[i];
    if (f.replayGainFactor == 1.0 && !f.replayGain.empty())
        text += "; ReplayGain: " + f.replayGain;
    if (f.guard && t.toDsd)
        text += "; the peak guard does not act on DSD";
    else if (f.guard && f.guardedFrames == 0)
        text += "; the peak guard is on and has not been needed";
    if (f.looping)
        text += "; an A/B loop repeats a part of the track";
    return text;
}

std::string latencyText(double ms)
{
    return ms < 0 ? "not known yet" : fixedText(ms, 1) + " ms";
}

} // namespace

bool readBackAgrees(const OpenedOutput &o)
{
    return o.readBack.rateHz == o.wire.frameRateHz && o.readBack.channels == o.wire.channels &&
           (o.mixer || o.readBack.format == encodingName(o.wire.encoding));
}

std::string readBackText(const ReadBack &record)
{
    return rateText(record.rateHz) + ' ' + record.format + ' ' + std::to_string(record.channels) +
           " channels";
}

std::string speedLine(const ChainFacts &f)
{
    const TransformPlan &t = f.transform;
    if (t.changesSpeed())
        return "speed: " + speedText(t.speed);
    if (t.toDsd && f.speedWanted.active())
        return "speed: 1.00x (DSD goes out directly and cannot be stretched; " +
               ratioText(f.speedWanted.ratio) + " was asked for)";
    return "speed: 1.00x (no stage in the path)";
}

std::string chainVerdict(const ChainFacts &f)
{
    const OpenedOutput &o = f.output;
    const std::string own = firstOwnChange(f);
    const bool otherFormat = o.converts || (o.readBack.known && !readBackAgrees(o));
    if (o.mixer)
        return otherFormat || !own.empty() ? "OS mixer AND format (" + (own.empty() ? behindUs(f) : own) + ")"
                                           : "OS mixer (" + behindUs(f) + ")";
    if (!own.empty())
        return "converted (" + own + ")";
    if (otherFormat)
        return "converted (" + behindUs(f) + ")";
    if (!o.readBack.known)
        return "unknown (nothing of ours changes a bit; what the hardware runs at is not known)";
    return std::string("clean (no stage changes a bit, and the device runs as the source does") +
           (o.exclusive ? "; nobody else can write to it)" : ")");
}

std::string bitPerfectVerdict(const ChainFacts &f)
{
    const std::vector<StageItem> items = verifyItems(f);
    const StageItem *objection = firstObjection(items);
    if (!objection)
        return "YES: nothing changes a bit, and the " + f.output.readBack.origin + " shows " +
               readBackText(f.output.readBack) + '.';
    if (objection->proof == Proof::unknown)
        return "not known: nothing of ours changes a bit, but " + objection->reason + '.';
    return "NO: " + oneLine(objection->reason) + '.';
}

std::vector<std::string> chainReport(const ChainFacts &f)
{
    const std::string requested = f.deviceRequested.empty() ? "system default" : oneLine(f.deviceRequested);
    return {"SIGNAL CHAIN BEGIN",
            "source: " + oneLine(f.path),
            "source format: " + sourceFormatText(f),
            "device requested: " + requested,
            "output backend: " + oneLine(backendText(f.output)),
            "output format: " + outputFormatText(f.output),
            "output latency: " + latencyText(f.latencyMs),
            "dsp: " + dspText(f),
            speedLine(f),
            volumeLine(f.volume),
            "bit-perfect: " + bitPerfectVerdict(f),
            "chain: " + chainVerdict(f),
            "underruns: " + std::to_string(f.underruns),
            "SIGNAL CHAIN END"};
}

} // namespace kelp_core
