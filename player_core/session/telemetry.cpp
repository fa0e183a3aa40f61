#include "player_core/session/telemetry.h"

#include "player_core/dsp/fixed_text.h"
#include "player_core/session/output_lines.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <pthread.h>

namespace kelp_core {

namespace {

using namespace std::chrono_literals;

// Shorter while a start or an end is on its way to the ear.
constexpr auto tickPeriod = 25ms;
constexpr auto shortTick = 5ms;
constexpr auto levelPeriod = 50ms;
constexpr auto progressPeriod = 100ms;
constexpr auto latencyPeriod = 500ms;
constexpr size_t tapStep = 8192;

} // namespace

Telemetry::Telemetry(LineWriter &lines, Mailbox &mailbox, const TrackBook &book)
    : lines_(lines)
    , mailbox_(mailbox)
    , book_(book)
{
    thread_ = std::thread([this] { run(); });
}

Telemetry::~Telemetry()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    thread_.join();
}

void Telemetry::attach(AudioLoop &loop, const Output &output, uint32_t opening)
{
    const std::lock_guard lock(mutex_);
    const OpenedOutput &opened = output.opened();
    attached_ = true;
    wake_.notify_one();
    loop_ = &loop;
    output_ = &output;
    opening_ = opening;
    dsd_ = opened.wire.carrier != Carrier::pcm;
    frameRateHz_ = std::max(1, opened.wire.frameRateHz);
    pending_.clear();
    latencySeenMs_ = -1;
    latencyToldMs_ = -1;
    levels_ = LevelMeter();
    spectrum_.reset();
    scope_.reset();
    levelDecoder_.reset();
}

void Telemetry::detach()
{
    const std::lock_guard lock(mutex_);
    if (!loop_)
        return;
    pending_.clear();
    track_.reset();
    loop_ = nullptr;
    output_ = nullptr;
    spectrum_.reset();
    scope_.reset();
    levelDecoder_.reset();
}

void Telemetry::expect(uint32_t serial)
{
    const std::lock_guard lock(mutex_);
    expected_ = serial;
    if (track_ && track_->serial < serial)
        track_.reset();
}

void Telemetry::setSpectrum(bool on)
{
    const std::lock_guard lock(mutex_);
    if (on == spectrumOn_)
        return;
    spectrumOn_ = on;
    spectrum_.reset();
    if (track_)
        saySpectrumHead();
}

void Telemetry::setScope(bool on)
{
    const std::lock_guard lock(mutex_);
    if (on == scopeOn_)
        return;
    scopeOn_ = on;
    scope_.reset();
    if (track_)
        sayWaveHead();
}

HeardPosition Telemetry::heard()
{
    const std::lock_guard lock(mutex_);
    if (!track_ || !loop_)
        return {};
    const PlaybackState state = loop_->board().read();
    takeEvents();
    return {track_->serial, positionSec(state), speed_};
}

void Telemetry::run()
{
    pthread_setname_np(pthread_self(), "kelp-telemetry");
    std::unique_lock lock(mutex_);
    while (!ending_) {
        const bool expecting = loop_ && (!track_ || !pending_.empty());
        wake_.wait_for(lock, expecting ? shortTick : tickPeriod, [this] { return ending_ || attached_; });
        attached_ = false;
        if (!ending_ && loop_)
            tick(Clock::now());
    }
}

void Telemetry::tick(Clock::time_point now)
{
    // The board first: what it counts as heard then has its event in the ring already.
    const PlaybackState state = loop_->board().read();
    takeEvents();
    const uint64_t unheard = static_cast<uint64_t>(std::max<int64_t>(0, state.delay));
    handlePending(state.written > unheard ? state.written - unheard : 0);
    takeSamples();
    if (!track_)
        return;
    if (now >= nextLevels_) {
        nextLevels_ = std::max(nextLevels_ + levelPeriod, now);
        sayLevels();
    }
    if (now >= nextProgress_) {
        nextProgress_ = std::max(nextProgress_ + progressPeriod, now);
        sayProgress(state);
    }
    tellGuard(state);
    if (now >= nextLatency_) {
        nextLatency_ = now + latencyPeriod;
        sayLatency();
    }
}

void Telemetry::takeEvents()
{
    AudioEvent event{};
    while (loop_->events().pop(event)) {
        if (event.kind == AudioEventKind::deckFree)
            mailbox_.post({.kind = MessageKind::deckFree, .text = {}, .serial = event.serial});
        else if (event.kind == AudioEventKind::deviceGone)
            mailbox_.post({.kind = MessageKind::deviceGone, .text = output_->message(), .serial = opening_});
        else
            pending_.push_back(event);
    }
}

void Telemetry::handlePending(uint64_t heardFrames)
{
    while (!pending_.empty()) {
        const AudioEvent event = pending_.front();
        // A start is heard with its first frame, or, of a track without any, with what comes behind it.
        const bool starts = event.kind != AudioEventKind::chainEnded;
        const bool passed = pending_.size() > 1 && pending_[1].at <= heardFrames;
        if (starts ? event.at >= heardFrames && !passed : event.at > heardFrames)
            return;
        pending_.pop_front();
        if (event.serial < expected_)
            continue;
        if (event.kind == AudioEventKind::trackStarted)
            startTrack(event);
        else if (event.kind == AudioEventKind::trackMoved)
            moveTo(event);
        else
            endTrack(event);
    }
}

void Telemetry::startTrack(const AudioEvent &event)
{
    track_ = book_.find(event.serial);
    if (!track_)
        return;
    placeSec_ = event.startSec;
    speed_ = event.speed;
    segment_ = 0;
    lines_.say(sourceLine(track_->facts));
    lines_.say(progressLine(placeSec_, track_->totalSec));
    nextProgress_ = Clock::now() + progressPeriod;
    saySpectrumHead();
    sayWaveHead();
    mailbox_.post({.kind = MessageKind::trackHeard, .text = {}, .serial = event.serial, .speed = speed_});
}

void Telemetry::moveTo(const AudioEvent &event)
{
    // Of a track that was paused so long that its device was closed nothing has been told on this one yet.
    if (!track_ || track_->serial != event.serial)
        return startTrack(event);
    placeSec_ = event.startSec;
    nextProgress_ = Clock::now() + progressPeriod;
    lines_.frame(progressLine(placeSec_, track_->totalSec));
    if (std::exchange(speed_, event.speed) != event.speed)
        mailbox_.post({.kind = MessageKind::speedHeard, .text = {}, .serial = event.serial, .speed = speed_});
}

void Telemetry::tellGuard(const PlaybackState &state)
{
    if (state.guardedFrames == 0 || guardTold_ == state.serial)
        return;
    guardTold_ = state.serial;
    mailbox_.post({.kind = MessageKind::guardActed, .text = {}, .serial = state.serial});
}

void Telemetry::endTrack(const AudioEvent &event)
{
    if (track_ && track_->serial == event.serial) {
        const double seconds = placeSec_ + static_cast<double>(event.frames) * speed_ / frameRateHz_;
        lines_.say(progressLine(seconds, track_->totalSec));
    }
    // A track may be over before there was time to look at it.
    tellGuard(loop_->board().read());
    track_.reset();
    mailbox_.post({.kind = MessageKind::trackOver, .text = {}, .serial = event.serial});
}

double Telemetry::positionSec(const PlaybackState &state) const
{
    const auto heard = static_cast<int64_t>(state.written) - std::max<int64_t>(0, state.delay);
    int64_t frames = 0;
    if (pending_.empty())
        frames = state.trackFrames - std::max<int64_t>(0, static_cast<int64_t>(state.trackWrittenAt) - heard);
    else // what comes next is being written while this is still heard
        frames =
            pending_.front().frames - std::max<int64_t>(0, static_cast<int64_t>(pending_.front().at) - heard);
    return placeSec_ + static_cast<double>(std::max<int64_t>(0, frames)) * speed_ / frameRateHz_;
}

void Telemetry::sayProgress(const PlaybackState &state)
{
    if (state.serial != track_->serial && pending_.empty())
        return;
    const double seconds = positionSec(state);
    lines_.frame(progressLine(seconds, track_->totalSec));
    saySegment(seconds);
}

void Telemetry::saySegment(double seconds)
{
    const std::vector<SourceSegment> &all = track_->segments;
    const double perSecond = static_cast<double>(track_->facts.format.framesPerSecond());
    const auto frame = static_cast<int64_t>(seconds * perSecond);
    const auto next = std::upper_bound(all.begin(), all.end(), frame,
                                       [](int64_t f, const SourceSegment &s) { return f < s.startFrame; });
    if (next == all.begin() || std::prev(next)->number == segment_)
        return;
    const SourceSegment &now = *std::prev(next);
    segment_ = now.number;
    const double end =
        next == all.end() ? track_->totalSec : static_cast<double>(next->startFrame) / perSecond;
    lines_.say(segmentLine(static_cast<double>(now.startFrame) / perSecond, end, now.number));
}

void Telemetry::takeSamples()
{
    const int channels = loop_->tapChannels();
    const size_t width = static_cast<size_t>(channels);
    samples_.resize(tapStep * width);
    if (dsd_) {
        bits_.resize(tapStep * width);
        const size_t n = loop_->dsdTap().read(bits_.data(), bits_.size()) / width;
        if (n == 0 || !track_)
            return;
        const int rate = track_->facts.format.rateHz;
        if (!levelDecoder_) {
            const std::vector<int> rates = PdmDecimator::pcmRatesFor(rate);
            if (rates.empty())
                return;
            levelDecoder_ = std::make_unique<PdmDecimator>(PdmFilter::fast, rate, rates.back(), channels);
        }
        samples_.clear();
        levelDecoder_->process(bits_.data(), n, samples_);
        levels_.add(samples_.data(), samples_.size() / width, channels);
        return;
    }
    while (const size_t n = loop_->pcmTap().read(samples_.data(), samples_.size()) / width) {
        levels_.add(samples_.data(), n, channels);
        if (spectrum_)
            spectrum_->add(samples_.data(), n, channels);
        if (scope_)
            scope_->add(samples_.data(), n, channels);
    }
}

void Telemetry::sayLevels()
{
    lines_.frame(levelLine(levels_.take()));
    if (spectrum_) {
        if (const std::string line = spectrum_->line(); !line.empty())
            lines_.frame(line);
    }
    if (scope_) {
        if (const std::string line = scope_->line(); !line.empty())
            lines_.frame(line);
    }
}

void Telemetry::saySpectrumHead()
{
    if (dsd_)
        return lines_.say("SPC none");
    if (!spectrumOn_)
        return;
    if (!spectrum_)
        // Whoever shows the two blocks as the two channels then shows what was measured.
        spectrum_ = std::make_unique<SpectrumAnalyser>(frameRateHz_, SpectrumSecondBlock::rightChannel);
    lines_.say("SPC cfg " + std::to_string(frameRateHz_) + ' ' + std::to_string(SpectrumAnalyser::bands));
    // Behind a prefix: a bare SPC line gives way to the frames that follow it.
    lines_.say("[player] " + spectrum_->zonesLine());
}

void Telemetry::sayWaveHead()
{
    if (dsd_)
        return lines_.say("WVF none");
    if (!scopeOn_)
        return;
    if (!scope_)
        scope_ = std::make_unique<WaveformBuckets>(frameRateHz_);
    lines_.say("WVF cfg " + std::to_string(frameRateHz_) + ' ' + std::to_string(WaveformBuckets::buckets));
}

void Telemetry::sayLatency()
{
    const double now = output_->latencyMs();
    const double before = std::exchange(latencySeenMs_, now);
    const auto near = [](double a, double b) { return std::abs(a - b) <= std::max(1.0, 0.2 * b); };
    // Two readings that agree: the buffer is full and the figure stands.
    if (now < 0 || before < 0 || !near(now, before))
        return;
    if (latencyToldMs_ >= 0 && near(now, latencyToldMs_))
        return;
    latencyToldMs_ = now;
    lines_.say("output latency: " + fixedText(now, 1) + " ms");
}

} // namespace kelp_core
