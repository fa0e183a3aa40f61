#include "player_core/session/audio_loop.h"

#include <algorithm>

#include <pthread.h>
#include <sched.h>
#include <sys/resource.h>

namespace kelp_core {

namespace {

constexpr auto deviceStuckAfter = std::chrono::seconds(10);
constexpr auto idlePoll = std::chrono::milliseconds(2);
// How far ahead a deck is held: time enough to make another one ready.
constexpr double holdSec = 0.1;
constexpr auto longestHoldAnswer = std::chrono::seconds(2);
constexpr double tapSec = 0.5;
/// While nothing plays so little silence is kept in hand, so that the next track is heard at once.
constexpr double idleFillSec = 0.04;
/// So much is decoded before a deck is heard that did not follow another: a decoder that is held up in its
/// first moments then leaves no hole. Less than what seals a deck's end, or a short track would never begin.
constexpr double cushionSec = 0.08;

/// A tenth of a second has ten chunks of this: short enough for quick answers, long enough to cost nothing.
size_t chunkFor(const WireFormat &wire)
{
    return std::clamp<size_t>(static_cast<size_t>(wire.frameRateHz) / 100, 64, 8192);
}

/// Both may be refused to an ordinary user; the ring and the device's buffer are deep enough without.
void raisePriority()
{
    sched_param param{};
    param.sched_priority = 10;
    if (pthread_setschedparam(pthread_self(), SCHED_FIFO, &param) != 0)
        setpriority(PRIO_PROCESS, 0, -11);
}

} // namespace

AudioLoop::AudioLoop(Output &output, const AudioSetup &setup)
    : output_(output)
    , opened_(output.opened())
    , wire_(opened_.wire)
    , setup_(setup)
    , channels_(static_cast<size_t>(std::max(1, wire_.channels)))
    , tapChannels_(std::min(2, std::max(1, wire_.channels)))
    , chunkFrames_(chunkFor(wire_))
    , pcmWriter_(wire_)
    , dsdWriter_(wire_)
    , dsdPerWire_(isDsd() ? dsdWriter_.dsdFramesPerWireFrame() : 1)
    , ramp_(wire_.frameRateHz, setup.gain)
    , guard_(wire_.frameRateHz, wire_.channels, isDsd() ? 0 : chunkFrames_)
    , mix_(chunkFrames_ * channels_)
    , other_(chunkFrames_ * channels_)
    , guarded_((chunkFrames_ + guard_.lookAhead()) * channels_)
    , tapScratch_((chunkFrames_ + guard_.lookAhead()) * 2)
    , dsd_(isDsd() ? (chunkFrames_ + 1) * dsdPerWire_ * channels_ : 0)
    , dsdTapScratch_(isDsd() ? (chunkFrames_ + 1) * dsdPerWire_ * 2 : 0)
    , bytes_((chunkFrames_ + guard_.lookAhead()) * static_cast<size_t>(wire_.bytesPerFrame()))
    , gain_(setup.gain)
    , guardOn_(setup.guard && !isDsd())
    , pcmTap_(isDsd() ? 0 : static_cast<size_t>(tapSec * wire_.frameRateHz) * 2)
    , dsdTap_(isDsd() ? static_cast<size_t>(tapSec * wire_.frameRateHz) * dsdPerWire_ * 2 : 0)
{
    thread_ = std::thread([this] { run(); });
}

AudioLoop::~AudioLoop()
{
    finish();
}

void AudioLoop::command(const AudioCommand &command)
{
    // The loop empties the ring at every chunk; should a device hold it up, a host that floods us waits.
    while (!commands_.push(command) && !hurry_.load())
        std::this_thread::sleep_for(idlePoll);
}

std::optional<HoldPlace> AudioLoop::hold()
{
    const uint32_t number = ++holdsAsked_;
    command({.kind = AudioCommandKind::hold});
    const auto until = std::chrono::steady_clock::now() + longestHoldAnswer;
    while (holdsAnswered_.load(std::memory_order_acquire) != number) {
        if (left() || std::chrono::steady_clock::now() > until) {
            command({.kind = AudioCommandKind::letGo});
            return std::nullopt;
        }
        std::this_thread::sleep_for(idlePoll / 4);
    }
    const uint32_t deck = heldDeck_.load(std::memory_order_relaxed);
    if (deck == 0)
        return std::nullopt;
    return HoldPlace{deck, heldFrame_.load(std::memory_order_relaxed)};
}

void AudioLoop::finish()
{
    hurry_.store(true);
    output_.interrupt();
    if (thread_.joinable())
        thread_.join();
}

void AudioLoop::run()
{
    pthread_setname_np(pthread_self(), "kelp-audio");
    // At a device without a clock we would run at full speed, and must not push everybody else aside.
    if (opened_.clocked)
        raisePriority();
    while (true) {
        takeCommands();
        if (quit_ || hurry_.load(std::memory_order_relaxed))
            break;
        const Step done = step();
        if (done == Step::gone) {
            event(AudioEventKind::deviceGone, 0, 0);
            break;
        }
        if (done == Step::wait)
            std::this_thread::sleep_for(idlePoll);
    }
    if (quit_ && !hurry_.load())
        playOut();
    left_.store(true);
}

void AudioLoop::playOut()
{
    // While the buffer empties, the listener's position still moves; the device's own way of draining is only
    // for the last moment, or for a device that did not start on so few frames.
    const auto low = static_cast<int64_t>(2 * chunkFrames_);
    for (int64_t before = INT64_MAX; state_.delay > low && state_.delay < before && !hurry_.load();
         publish()) {
        before = state_.delay;
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
    }
    output_.drain();
    state_.delay = 0;
    board_.publish(state_);
}

void AudioLoop::takeCommands()
{
    AudioCommand command{};
    while (commands_.pop(command))
        apply(command);
}

void AudioLoop::apply(const AudioCommand &command)
{
    switch (command.kind) {
    case AudioCommandKind::play:
        beginSwitch(command.deck, command.staysPaused);
        break;
    case AudioCommandKind::follow:
        if (!current_) // the present one has ended in the meantime
            return beginSwitch(command.deck, false);
        release(next_);
        next_ = command.deck;
        fadeFrames_ = isDsd() ? 0 : command.fadeFrames;
        break;
    case AudioCommandKind::pause:
        paused_ = true;
        ramp_.setTarget(0.0);
        break;
    case AudioCommandKind::resume:
        paused_ = false;
        if (!switchTo_) // what is being left still fades out
            ramp_.setTarget(gain_);
        break;
    case AudioCommandKind::guard:
        guardOn_ = command.on && !isDsd();
        break;
    case AudioCommandKind::hold:
        answerHold();
        break;
    case AudioCommandKind::letGo:
        holdFrame_ = -1;
        break;
    case AudioCommandKind::replace:
        replacement_ = command.deck;
        replaceFade_ = isDsd() ? 0 : command.fadeFrames;
        if (!current_ || holdFrame_ < 0)
            return release(replacement_);
        release(next_);
        break;
    case AudioCommandKind::gain:
        gain_ = command.gain;
        if (!paused_ && !switchTo_)
            ramp_.setTarget(gain_);
        break;
    }
}

void AudioLoop::answerHold()
{
    const bool can = current_ && !switchTo_ && !replacement_ && fadeLength_ == 0 && !current_->finished();
    if (can) {
        // Without a clock the deck is read as fast as it is filled, so it is held where it stands.
        const double ahead = opened_.clocked && !paused_ ? holdSec * wire_.frameRateHz : 0.0;
        holdFrame_ = current_->consumed() + static_cast<int64_t>(ahead) * static_cast<int64_t>(dsdPerWire_);
    }
    heldDeck_.store(can ? current_->number() : 0, std::memory_order_relaxed);
    heldFrame_.store(holdFrame_, std::memory_order_relaxed);
    holdsAnswered_.fetch_add(1, std::memory_order_release);
}

void AudioLoop::beginSwitch(Deck *deck, bool staysPaused)
{
    holdFrame_ = -1;
    release(replacement_);
    release(next_);
    release(switchTo_);
    switchTo_ = deck;
    // DSD cannot be faded; and what is silent already needs no fade.
    const bool silent = !current_ || (paused_ && ramp_.settled());
    paused_ = paused_ && staysPaused;
    // A server wants its whole buffer full, so there the silence in hand is taken back. A card keeps running
    // on little: stopping it could make a converter click.
    if (silent && opened_.mixer && state_.written > 0)
        output_.drop();
    if (isDsd() || silent)
        return finishSwitch();
    ramp_.setTarget(0.0);
}

void AudioLoop::finishSwitch()
{
    release(leaving_);
    release(current_);
    current_ = switchTo_;
    switchTo_ = nullptr;
    fadeLength_ = 0;
    dsdCarry_ = 0;
    sounding_ = false;
    cushioned_ = false;
    ramp_.jump(paused_ ? 0.0 : gain_);
}

void AudioLoop::release(Deck *&deck)
{
    if (deck)
        event(AudioEventKind::deckFree, deck->number(), 0);
    deck = nullptr;
}

void AudioLoop::event(AudioEventKind kind, uint32_t serial, int64_t frames, double startSec, double speed)
{
    // Room for 1,024 events is more than a telemetry tick can bring; a lost one would hang a track's end, so
    // rather wait.
    while (!events_.push({kind, serial, state_.written, frames, startSec, speed}) && !hurry_.load())
        std::this_thread::sleep_for(idlePoll);
}

AudioLoop::Step AudioLoop::step()
{
    if (switchTo_ && ramp_.settled()) {
        if (guard_.held() > 0)
            return flushGuard();
        finishSwitch();
    }
    if (!current_ && state_.written == 0)
        return Step::wait; // the first thing a device hears is music
    if (!current_ || (paused_ && (isDsd() || ramp_.settled())))
        return silence();
    return hasCushion() ? playMusic() : starve();
}

bool AudioLoop::hasCushion()
{
    if (!cushioned_) {
        const auto wanted =
            static_cast<size_t>(cushionSec * static_cast<double>(current_->plan().framesPerSecondOut()));
        // Of very many channels the ring holds less than that.
        cushioned_ =
            current_->sealed() || current_->available() >= std::min(wanted, current_->ringFrames() / 2);
    }
    return cushioned_;
}

AudioLoop::Step AudioLoop::starve()
{
    // Before a track's first frame, and while the device has enough in hand, waiting costs nothing.
    const bool fed = opened_.clocked && state_.written > 0;
    if (fed && output_.delayFrames() > static_cast<int64_t>(2 * chunkFrames_))
        return Step::wait;
    if (switchTo_) {
        // A source that hangs gives nothing more to fade, and must not keep the next one from its turn.
        ramp_.jump(0.0);
        return Step::written;
    }
    if (!fed)
        return Step::wait;
    if (sounding_) {
        gaps_.fetch_add(1, std::memory_order_relaxed);
        sounding_ = false; // once a gap
    }
    return silence();
}

AudioLoop::Step AudioLoop::silence()
{
    if (guard_.held() > 0)
        return flushGuard();
    const size_t frames = chunkFrames_;
    if (opened_.clocked && !opened_.mixer &&
        output_.delayFrames() > static_cast<int64_t>(idleFillSec * wire_.frameRateHz))
        return Step::wait;
    if (!opened_.clocked) {
        const auto now = std::chrono::steady_clock::now();
        if (now < silenceUntil_)
            return Step::wait;
        const auto length = std::chrono::nanoseconds(1'000'000'000ll * static_cast<int64_t>(frames) /
                                                     std::max(1, wire_.frameRateHz));
        // A pause that has just begun starts its clock now; afterwards the clock runs on without drift.
        const bool running = now - silenceUntil_ < length;
        silenceUntil_ = (running ? silenceUntil_ : now) + length;
    }
    if (isDsd()) {
        dsdWriter_.silence(frames, bytes_.data());
    } else {
        std::fill(mix_.begin(), mix_.end(), 0.0);
        pcmWriter_.write(mix_.data(), frames, bytes_.data(), false);
    }
    return writeOut(frames, false);
}

AudioLoop::Step AudioLoop::writeMusic(size_t wireFrames)
{
    state_.trackFrames += static_cast<int64_t>(wireFrames);
    state_.trackWrittenAt = state_.written + wireFrames;
    sounding_ = true;
    return writeOut(wireFrames, true);
}

/// What the device found missing was missing behind what was written before.
void AudioLoop::countGaps(bool music)
{
    const unsigned dry = output_.underruns();
    if (musicInHand_ && dry != drySeen_)
        gaps_.fetch_add(dry - drySeen_, std::memory_order_relaxed);
    drySeen_ = dry;
    musicInHand_ = music;
}

AudioLoop::Step AudioLoop::writeOut(size_t wireFrames, bool music)
{
    const size_t frameBytes = static_cast<size_t>(wire_.bytesPerFrame());
    size_t done = 0;
    while (done < wireFrames) {
        const long n = output_.write(bytes_.data() + done * frameBytes, wireFrames - done);
        if (n < 0)
            return Step::gone;
        if (n > 0) {
            done += static_cast<size_t>(n);
            refusedSince_ = {};
            continue;
        }
        if (hurry_.load(std::memory_order_relaxed))
            return Step::written;
        const auto now = std::chrono::steady_clock::now();
        if (refusedSince_ == std::chrono::steady_clock::time_point{})
            refusedSince_ = now;
        else if (now - refusedSince_ > deviceStuckAfter)
            return Step::gone;
    }
    countGaps(music);
    state_.written += wireFrames;
    publish();
    return Step::written;
}

void AudioLoop::publish()
{
    state_.delay = output_.delayFrames();
    board_.publish(state_);
}

} // namespace kelp_core
