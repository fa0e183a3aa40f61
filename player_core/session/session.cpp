#include "player_core/session/session.h"

#include "player_core/session/output_lines.h"
#include "player_core/session/verify_report.h"

#include <algorithm>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

// The device stays open and fed this long behind a track, so that the next one starts at once.
constexpr auto keepOpen = 3s;
// A pause longer than this gives the device back; resuming opens it again at the same place.
constexpr auto longestPause = 10min;
constexpr auto watchPeriod = 200ms;
// So long after a line the audio thread has taken it and a ramp is over: one write, and the ramp's few
// milliseconds. A check that is asked for together with a change must not judge what was before.
constexpr auto settleTime = 300ms;

} // namespace

Session::Session(SessionOptions options, SessionServices services, LineWriter &lines)
    : options_(std::move(options))
    , services_(std::move(services))
    , lines_(lines)
    , telemetry_(lines, *mailbox_, book_)
    , parent_(options_.parentPid)
    , volume_(options_.volume)
{
    telemetry_.setSpectrum(options_.spectrum);
    telemetry_.setScope(options_.scope);
}

Session::~Session()
{
    closeDevice();
}

int Session::run(const ControlOrigin &control)
{
    hostOwned_ = control.readLine != nullptr;
    const ControlReader reader(control, mailbox_, cancel_);
    for (const std::string &warning : options_.warnings)
        lines_.say("WARN " + warning);
    if (options_.hasSource())
        loadFirst();
    while (!exit_) {
        if (const auto message = mailbox_->wait(waitTime()))
            handle(*message);
        if (!exit_)
            passTime();
    }
    closeDevice();
    return *exit_;
}

void Session::end(int code)
{
    if (!exit_)
        exit_ = code;
}

void Session::handle(const Message &message)
{
    switch (message.kind) {
    case MessageKind::controlLine:
        return handleLine(message.text);
    case MessageKind::controlLost:
        return lines_.say(message.text);
    case MessageKind::controlEnd:
        return controlEnded();
    case MessageKind::trackHeard:
        return onTrackHeard(message.serial);
    case MessageKind::trackOver:
        return onTrackOver(message.serial);
    case MessageKind::sourceFailed:
        return book_.setFailure(message.serial, message.text);
    case MessageKind::deckFree:
        if (lastDeck_ && lastDeck_->number() == message.serial)
            lastDeck_ = nullptr;
        std::erase_if(decks_, [&](const auto &deck) { return deck->number() == message.serial; });
        return;
    case MessageKind::deviceGone:
        if (message.serial != openings_)
            return; // of a device that has been closed in the meantime
        lines_.say("The output device is gone: " +
                   oneLine(message.text.empty() ? "it takes no more samples" : message.text));
        return end(exit_code::noDevice);
    }
}

void Session::handleLine(const std::string &text)
{
    lines_.log("[ctl] recv " + oneLine(text));
    handleControl(parseControlLine(text), text);
}

void Session::handleControl(const ControlLine &line, const std::string &text)
{
    LoadRequest request;
    request.source.track = line.track;
    if (line.kind != ControlKind::report && line.kind != ControlKind::verify)
        changedAt_ = Clock::now();
    switch (line.kind) {
    case ControlKind::stop:
        return end(exit_code::stopped);
    case ControlKind::load:
    case ControlKind::loadAt:
        request.source.path = line.path;
        request.startSec = line.seconds;
        request.hasPosition = line.kind == ControlKind::loadAt;
        return load(request);
    case ControlKind::loadCue:
        request.source.cuePath = line.path;
        return load(request);
    case ControlKind::loadIso:
        request.source.isoPath = line.path;
        return load(request);
    case ControlKind::pause:
        return pause();
    case ControlKind::resume:
        return resume();
    case ControlKind::volume:
        return setVolume(line.volume);
    case ControlKind::spectrum:
        return telemetry_.setSpectrum(line.on);
    case ControlKind::scope:
        return telemetry_.setScope(line.on);
    case ControlKind::report:
        return sayChain();
    case ControlKind::verify:
        return askVerify();
    case ControlKind::notSupported:
        return handleUnsupported(line, text);
    case ControlKind::malformed:
        return lines_.say(oneLine(line.error));
    case ControlKind::empty:
        return;
    }
}

void Session::handleUnsupported(const ControlLine &line, const std::string &text)
{
    lines_.log("[ctl] not supported: " + oneLine(text));
    if (!line.heardAbout.empty() && warned_.insert(line.heardAbout).second)
        lines_.say("WARN This engine does not have " + line.heardAbout +
                   " yet, so the music plays without it.");
}

void Session::controlEnded()
{
    inputEnded_ = true;
    if (hostOwned_ || options_.parentPid != 0)
        return end(exit_code::stopped);
    // Somebody's script has said all it had to say: what is playing plays to its end.
    resume();
    if (!options_.hasSource() && !playing_ && !deferred_)
        end(exit_code::done);
}

void Session::onTrackHeard(uint32_t serial)
{
    const auto info = book_.find(serial);
    if (!info || serial < heardSerial_ || serial < firstWanted_)
        return;
    if (const auto before = book_.find(heardSerial_);
        before && serial != heardSerial_ && !before->failure.empty())
        lines_.say(failedLine(before->failure, before->path));
    heardSerial_ = serial;
    underrunsBefore_ = underruns();
    book_.forgetBefore(serial);
    transform_ = transformFor(info->facts.format);
    if (transform_.decodesDsd())
        lines_.say(pdmFilterLine(info->facts.format.rateHz, pdmFilterName(transform_.filter),
                                 options_.pcmFilterChosen));
    sayChain();
}

void Session::onTrackOver(uint32_t serial)
{
    const auto info = book_.find(serial);
    if (!info || serial < firstWanted_)
        return;
    lines_.say(info->failure.empty() ? doneLine(info->path) : failedLine(info->failure, info->path));
    if (serial != lastSerial_ && !oneSource())
        return; // a later one is on its way
    playing_ = false;
    idleSince_ = Clock::now();
    if (!info->failure.empty() && info->fromCommandLine)
        return end(exit_code::unplayable);
    if (deferred_) {
        deferredAt_ = idleSince_ + 250ms;
        return;
    }
    if (oneSource() || (!options_.staysUp() && inputEnded_))
        end(exit_code::done);
}

std::chrono::milliseconds Session::waitTime() const
{
    if (verifyAt_)
        return std::clamp(std::chrono::duration_cast<std::chrono::milliseconds>(*verifyAt_ - Clock::now()),
                          1ms, std::chrono::milliseconds(watchPeriod));
    if (!playing_ && deferred_)
        return std::clamp(std::chrono::duration_cast<std::chrono::milliseconds>(deferredAt_ - Clock::now()),
                          1ms, std::chrono::milliseconds(watchPeriod));
    return watchPeriod;
}

void Session::passTime()
{
    const auto now = Clock::now();
    if (parent_.gone())
        return end(exit_code::stopped);
    if (verifyAt_ && now >= *verifyAt_)
        sayVerify();
    if (!playing_ && deferred_ && now >= deferredAt_) {
        const LoadRequest request = *deferred_;
        deferred_.reset();
        selfStarted_ = now;
        load(request);
        if (!playing_ && inputEnded_)
            end(exit_code::done);
    }
    // In a session of one source the audio thread leaves at its end; a line that came in just then was not
    // taken by it any more.
    if (playing_ && loop_ && loop_->left() && loop_->board().read().serial < lastSerial_) {
        closeDevice();
        load(LoadRequest(heardRequest_));
    }
    if (!playing_ && output_ && now - idleSince_ >= keepOpen)
        closeDevice();
    if (playing_ && paused_ && output_ && lastSerial_ == heardSerial_ && now - pausedSince_ >= longestPause)
        park();
}

void Session::pause()
{
    if (!playing_ || paused_)
        return;
    paused_ = true;
    pausedSince_ = Clock::now();
    if (loop_)
        loop_->command({.kind = AudioCommandKind::pause});
}

void Session::resume()
{
    if (!paused_)
        return;
    paused_ = false;
    if (parked_) {
        const LoadRequest request = *parked_;
        load(request);
    } else if (loop_) {
        loop_->command({.kind = AudioCommandKind::resume});
    }
}

void Session::park()
{
    LoadRequest request = heardRequest_;
    request.startSec = telemetry_.heard().seconds;
    request.hasPosition = true;
    closeDevice();
    parked_ = request;
    lines_.say("Paused for ten minutes, so the device is free for others; resuming opens it again.");
}

void Session::setVolume(int volume)
{
    volume_ = volume;
    if (!loop_)
        return; // the next track's chain block tells
    loop_->command({.kind = AudioCommandKind::gain, .gain = gainForVolume(volume)});
    lines_.say(volumeLine(volumeFacts()));
}

VolumeFacts Session::volumeFacts() const
{
    VolumeFacts facts;
    const WireFormat &wire = output_->opened().wire;
    if (wire.carrier != Carrier::pcm) {
        facts.place = wire.carrier == Carrier::dop ? VolumePlace::dop : VolumePlace::nativeDsd;
        return facts;
    }
    facts.gain = gainForVolume(volume_);
    // Single floats carry the 24 bits of their mantissa.
    facts.deviceBits = wire.encoding == SampleEncoding::f32 ? 24 : wire.validBits;
    const StreamFormat &from = transform_.from;
    facts.sourceBits = from.isDsd() ? facts.deviceBits : from.isFloat ? 24 : from.depthBits;
    facts.dither = facts.gain != 1.0 && wire.encoding != SampleEncoding::f32;
    return facts;
}

unsigned Session::underruns() const
{
    return output_ && loop_ ? output_->underruns() + loop_->starved() : 0;
}

std::optional<ChainFacts> Session::chainFacts() const
{
    const auto info = book_.find(heardSerial_);
    if (!output_ || !loop_ || !info || !playing_)
        return std::nullopt;
    const PlaybackState state = loop_->board().read();
    ChainFacts facts;
    facts.path = info->path;
    facts.source = info->facts;
    facts.failure = info->failure;
    facts.deviceRequested = options_.device;
    facts.output = output_->opened();
    facts.transform = transform_;
    facts.latencyMs = output_->latencyMs();
    facts.volume = volumeFacts();
    facts.dithered = state.dithered;
    facts.fading = !state.unity && facts.volume.gain == 1.0 && facts.volume.place == VolumePlace::software;
    facts.mixing = state.mixing;
    facts.paused = paused_;
    facts.trackFrames = state.trackFrames;
    facts.scaledFrames = state.scaledFrames;
    facts.clipped = state.clipped;
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
