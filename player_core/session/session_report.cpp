// Session: what it tells of the signal, and the switches that only change a number.
#include "player_core/session/session.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/session/output_lines.h"
#include "player_core/session/verify_report.h"

#include <algorithm>
#include <utility>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

// So long after a line the audio thread has taken it and a ramp is over: one write, and the ramp's few
// milliseconds. A check that is asked for together with a change must not judge what was before.
constexpr auto settleTime = 300ms;
constexpr auto tellingPeriod = 5s; ///< between two warnings of a device that keeps running dry

} // namespace

void Session::setVolume(int volume)
{
    volume_ = volume;
    if (!loop_)
        return; // the next track's chain block tells
    loop_->command({.kind = AudioCommandKind::gain, .gain = gainForVolume(volume)});
    const auto info = book_.find(heardSerial_);
    lines_.say(volumeLine(volumeFacts(info ? info->gain : 1.0)));
}

void Session::setGuard(bool on)
{
    guard_ = on;
    const bool dsd = output_ && output_->opened().wire.carrier != Carrier::pcm;
    if (loop_)
        loop_->command({.kind = AudioCommandKind::guard, .on = on});
    if (!on)
        return lines_.say("Peak guard: off; samples beyond full scale are cut.");
    lines_.say(dsd ? "Peak guard: on, but it does not act on DSD that goes out directly."
                   : "Peak guard: on; it acts only where a sample would pass full scale.");
}

void Session::sayGuard(uint32_t serial)
{
    if (!loop_)
        return;
    const PlaybackState state = loop_->board().read();
    if (state.serial != serial)
        return;
    lines_.say("Peak guard: this track would pass full scale, so its peaks are brought down (by " +
               fixedText(-decibels(state.guardGain), 2) + " dB so far).");
    if (serial == heardSerial_)
        sayChain(); // a later track's block comes with its start
}

VolumeFacts Session::volumeFacts(double replayGain) const
{
    VolumeFacts facts;
    const WireFormat &wire = output_->opened().wire;
    if (wire.carrier != Carrier::pcm) {
        facts.place = wire.carrier == Carrier::dop ? VolumePlace::dop : VolumePlace::nativeDsd;
        return facts;
    }
    facts.gain = gainForVolume(volume_) * replayGain;
    // Single floats carry the 24 bits of their mantissa.
    facts.deviceBits = wire.encoding == SampleEncoding::f32 ? 24 : wire.validBits;
    const StreamFormat &from = transform_.from;
    facts.sourceBits = from.isDsd() ? facts.deviceBits : from.isFloat ? 24 : from.depthBits;
    facts.dither = facts.gain != 1.0 && wire.encoding != SampleEncoding::f32;
    return facts;
}

unsigned Session::underruns() const
{
    return loop_ ? loop_->gaps() : 0;
}

void Session::watchUnderruns(bool trackEnds)
{
    const unsigned count = underruns();
    const auto now = Clock::now();
    if (count <= underrunsTold_ || (!trackEnds && now - underrunsToldAt_ < tellingPeriod))
        return;
    const unsigned fresh = count - std::exchange(underrunsTold_, count);
    underrunsToldAt_ = now;
    lines_.say("WARN The device ran dry " +
               (fresh == 1 ? std::string("once, so a gap of silence stood")
                           : std::to_string(fresh) + " times, so gaps of silence stood") +
               " in the music: a busy machine or a slow disk did not deliver it in time.");
    lines_.say("underruns: " + std::to_string(count)); // the chain's figure, without the whole block
}

std::optional<ChainFacts> Session::chainFacts() const
{
    const auto info = book_.find(heardSerial_);
    if (!output_ || !loop_ || !info || !playing_)
        return std::nullopt;
    const PlaybackState state = loop_->board().read();
    const bool pcm = output_->opened().wire.carrier == Carrier::pcm;
    ChainFacts facts;
    facts.path = info->path;
    facts.source = info->facts;
    facts.failure = info->failure;
    facts.deviceRequested = options_.device;
    facts.output = output_->opened();
    facts.transform = transform_;
    facts.transform.speed.ratio = heardSpeed_;
    facts.latencyMs = output_->latencyMs();
    facts.volume = volumeFacts(info->gain);
    facts.dithered = state.dithered;
    facts.fading = !state.unity && pcm && gainForVolume(volume_) == 1.0;
    facts.mixing = state.mixing;
    facts.paused = paused_;
    facts.replayGain = info->gainText;
    facts.replayGainFactor = info->gain;
    facts.speedWanted = speed_;
    facts.looping = ab_ && ab_->serial == info->serial;
    facts.guard = guard_;
    // What is counted is counted of the track that is handed over; a later one says nothing of this one.
    if (state.serial == info->serial) {
        facts.trackFrames = state.trackFrames;
        facts.scaledFrames = state.scaledFrames;
        facts.guardedFrames = state.guardedFrames;
        facts.guardGain = state.guardGain;
        facts.clippedSamples = state.clippedSamples;
    }
    facts.underruns = underruns();
    facts.trackUnderruns = facts.underruns - underrunsBefore_;
    return facts;
}

void Session::sayChain()
{
    const std::optional<ChainFacts> facts = chainFacts();
    if (!facts)
        return lines_.say("Nothing plays, so there is no signal chain to report.");
    for (const std::string &line : chainReport(*facts))
        lines_.say(line);
}

void Session::askVerify()
{
    verifyAt_ = std::max(Clock::now(), changedAt_ + settleTime);
}

void Session::sayVerify()
{
    verifyAt_.reset();
    const std::optional<ChainFacts> facts = chainFacts();
    if (!facts)
        return lines_.say(verifyNothing());
    for (const std::string &line : verifyReport(*facts))
        lines_.say(line);
}

} // namespace kelp_core
