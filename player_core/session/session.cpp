#include "player_core/session/session.h"

#include "player_core/session/output_lines.h"

#include <algorithm>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

// The device stays open and fed this long behind a track, so that the next one starts at once.
constexpr auto keepOpen = 3s;
// A pause longer than this gives the device back; resuming opens it again at the same place.
constexpr auto longestPause = 10min;
constexpr auto watchPeriod = 200ms;

} // namespace

Session::Session(SessionOptions options, SessionServices services, LineWriter &lines)
    : options_(std::move(options))
    , services_(std::move(services))
    , lines_(lines)
    , telemetry_(lines, *mailbox_, book_)
    , parent_(options_.parentPid)
    , volume_(options_.volume)
    , guard_(options_.peakGuard)
    , speed_(options_.speed)
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
        heardSpeed_ = message.serial >= heardSerial_ ? message.speed : heardSpeed_;
        return onTrackHeard(message.serial);
    case MessageKind::trackOver:
        return onTrackOver(message.serial);
    case MessageKind::speedHeard:
        if (message.serial != heardSerial_ || !playing_)
            return;
        heardSpeed_ = message.speed;
        return sayChain();
    case MessageKind::guardActed:
        return sayGuard(message.serial);
    case MessageKind::sourceFailed:
        return book_.setFailure(message.serial, message.text);
    case MessageKind::deckFree:
        return retireDeck(message.serial);
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
    case ControlKind::speed:
        return setSpeed(line.ratio);
    case ControlKind::loop:
        return setLoop(line.seconds, line.toSec);
    case ControlKind::loopOff:
        return clearLoop();
    case ControlKind::guard:
        return setGuard(line.on);
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
    watchUnderruns(true);
    heardSerial_ = serial;
    underrunsBefore_ = underruns();
    book_.forgetBefore(serial);
    requests_.erase(requests_.begin(), requests_.lower_bound(serial));
    if (ab_ && ab_->serial != serial && ab_->serial != 0) {
        ab_.reset();
        lines_.say("A/B loop: it ended with its track.");
    }
    transform_ = transformFor(info->facts.format);
    if (transform_.decodesDsd())
        lines_.say(pdmFilterLine(info->facts.format.rateHz, pdmFilterName(transform_.filter),
                                 options_.pcmFilterChosen));
    if (!info->gainText.empty())
        lines_.say("ReplayGain: " + info->gainText + '.');
    if (transform_.toDsd && speed_.active())
        lines_.say("DSD goes out directly and cannot be stretched, so this track plays at its own speed.");
    sayChain();
}

void Session::onTrackOver(uint32_t serial)
{
    const auto info = book_.find(serial);
    if (!info || serial < firstWanted_)
        return;
    watchUnderruns(true);
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
    return retuneWanted_ ? 10ms : std::chrono::milliseconds(watchPeriod);
}

void Session::passTime()
{
    const auto now = Clock::now();
    if (parent_.gone())
        return end(exit_code::stopped);
    watchUnderruns();
    std::erase_if(leavingDecks_, [](const auto &deck) { return deck->left(); });
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
    if (retuneWanted_ && now >= retuneAt_ && mailbox_->empty())
        retune();
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
    request.keepsLoop = true;
    closeDevice();
    parked_ = request;
    lines_.say("Paused for ten minutes, so the device is free for others; resuming opens it again.");
}

} // namespace kelp_core
