#include "player_core/session/deck.h"

#include <algorithm>
#include <chrono>
#include <cmath>

#include <pthread.h>

namespace kelp_core {

namespace {

// What is decoded in one step: short enough that the first samples come at once.
constexpr size_t pcmStepFrames = 4096;
constexpr size_t dsdStepFrames = 8192;
// The end of the chain is kept open for a further track until the ring is down to this.
constexpr double sealSec = 0.15;
constexpr size_t mostRingBytes = 24u << 20;

size_t ringElements(const DeckSetup &setup, bool dsdRing)
{
    const TransformPlan &plan = setup.transform;
    if (plan.toDsd != dsdRing)
        return 0;
    const size_t channels = static_cast<size_t>(std::max(1, plan.toChannels));
    const double frames = setup.ringSec * static_cast<double>(plan.framesPerSecondOut());
    const size_t most = mostRingBytes / (dsdRing ? 1 : sizeof(double));
    return std::min(most, static_cast<size_t>(frames) * channels);
}

} // namespace

Deck::Deck(DeckSetup setup, DeckTrack first)
    : setup_(std::move(setup))
    , channels_(static_cast<size_t>(std::max(1, setup_.transform.toChannels)))
    , lowFrames_(static_cast<int64_t>(sealSec * static_cast<double>(setup_.transform.framesPerSecondOut())))
    , pcm_(ringElements(setup_, false))
    , dsd_(ringElements(setup_, true))
    , transform_(setup_.transform)
    , queued_(std::move(first))
{
    thread_ = std::thread([this] {
        run();
        left_.store(true);
    });
}

Deck::~Deck()
{
    leave();
    thread_.join();
}

void Deck::leave()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
}

bool Deck::chain(DeckTrack &track)
{
    {
        const std::lock_guard lock(mutex_);
        if (endSealed_ || queued_)
            return false;
        queued_ = std::move(track);
    }
    wake_.notify_one();
    return true;
}

void Deck::run()
{
    pthread_setname_np(pthread_self(), "kelp-decode");
    DeckTrack track;
    while (nextTrack(track))
        playTrack(track);
    AudioBlock tail;
    transform_.flush(tail);
    putAll(tail);
    const int64_t end = produced_.load(std::memory_order_relaxed);
    expectedEnd_.store(end, std::memory_order_release);
    endFrame_.store(end, std::memory_order_release);
}

bool Deck::nextTrack(DeckTrack &track)
{
    const bool first = produced_.load(std::memory_order_relaxed) == 0 && !track.source;
    // Whoever opened the source does not wait for its files to be closed: that is done here.
    track.source.reset();
    std::unique_lock lock(mutex_);
    while (!queued_ && !ending_ && !first) {
        const int64_t ahead =
            produced_.load(std::memory_order_relaxed) - consumed_.load(std::memory_order_acquire);
        if (ahead <= lowFrames_)
            break;
        wake_.wait_for(lock, std::chrono::milliseconds(setup_.clocked ? 20 : 1));
    }
    if (!queued_ || ending_) {
        endSealed_ = true;
        return false;
    }
    track = std::move(*queued_);
    queued_.reset();
    return true;
}

void Deck::beginTrack(const DeckTrack &track)
{
    const SourceFacts &facts = track.source->facts();
    const double ratio = setup_.transform.framesOutPerFrame();
    const auto perSecond = static_cast<double>(std::max<int64_t>(1, facts.format.framesPerSecond()));
    // A filter's delay shifts what has been produced, never the place in the music: joins are counted by the
    // sources' frames.
    putMark({std::llround(reachedFrames_), track.serial, track.dither, track.goesOn, track.startFrame,
             static_cast<double>(track.startFrame) / perSecond, setup_.transform.speedRatio()});
    const bool known = facts.totalFrames >= 0 && !track.loop.active();
    const double length =
        known ? static_cast<double>(std::max<int64_t>(0, facts.totalFrames - track.startFrame)) : 0;
    expectedEnd_.store(known ? std::llround(reachedFrames_ + length * ratio) : -1, std::memory_order_release);
    unheard_ += static_cast<size_t>(std::llround(static_cast<double>(track.runUp) * ratio));
    transform_.setGain(track.gain);
}

void Deck::playTrack(DeckTrack &track)
{
    beginTrack(track);
    const size_t step = track.source->facts().format.isDsd() ? dsdStepFrames : pcmStepFrames;
    AudioBlock in;
    AudioBlock out;
    int64_t read = -track.runUp;
    int64_t at = track.startFrame - track.runUp;
    while (true) {
        size_t want = step;
        if (track.loop.active())
            want = static_cast<size_t>(
                std::min<int64_t>(static_cast<int64_t>(want), std::max<int64_t>(0, track.loop.to - at)));
        const ReadOutcome outcome =
            want > 0 ? track.source->read(in, want) : ReadOutcome{ReadStatus::end, {}};
        if (outcome.status == ReadStatus::end && track.loop.active() && at > track.loop.from) {
            if (!goBack(track, read))
                break;
            at = track.loop.from;
            continue;
        }
        if (outcome.status != ReadStatus::frames) {
            if (outcome.status == ReadStatus::failed)
                fail(track.serial, outcome.message);
            break;
        }
        read += static_cast<int64_t>(in.frames);
        at += static_cast<int64_t>(in.frames);
        transform_.process(in, out);
        if (!putAll(out))
            break;
    }
    reachedFrames_ += static_cast<double>(read) * setup_.transform.framesOutPerFrame();
}

/// The filters keep their state, so what comes out is what a file with the repeated music in it would give.
bool Deck::goBack(const DeckTrack &track, int64_t framesHeard)
{
    if (!track.source->seekFrame(track.loop.from)) {
        fail(track.serial, "this source cannot be moved back to the start of the loop");
        return false;
    }
    const auto perSecond = static_cast<double>(track.source->facts().format.framesPerSecond());
    const double reached =
        reachedFrames_ + static_cast<double>(framesHeard) * setup_.transform.framesOutPerFrame();
    return putMark({std::llround(reached), track.serial, track.dither, true, track.loop.from,
                    static_cast<double>(track.loop.from) / perSecond, setup_.transform.speedRatio()});
}

bool Deck::putMark(const DeckMark &mark)
{
    while (!marks_.push(mark)) {
        if (!waitForRoom())
            return false;
    }
    const std::lock_guard lock(mutex_);
    while (places_.size() > 1 && places_[1].frame <= consumed_.load(std::memory_order_acquire))
        places_.pop_front();
    places_.push_back(mark);
    return !ending_;
}

std::optional<DeckPlace> Deck::placeAt(int64_t frame)
{
    const int64_t end = endFrame_.load(std::memory_order_acquire);
    if (end >= 0 && frame >= end)
        return std::nullopt;
    const std::lock_guard lock(mutex_);
    const auto behind = std::upper_bound(places_.begin(), places_.end(), frame,
                                         [](int64_t f, const DeckMark &mark) { return f < mark.frame; });
    if (behind == places_.begin())
        return std::nullopt;
    const DeckMark &mark = *std::prev(behind);
    const double since = static_cast<double>(frame - mark.frame) / setup_.transform.framesOutPerFrame();
    return DeckPlace{mark.serial, mark.sourceFrame + std::llround(since)};
}

void Deck::fail(uint32_t serial, const std::string &reason)
{
    if (setup_.onFailed)
        setup_.onFailed(serial, reason);
}

bool Deck::putAll(const AudioBlock &block)
{
    size_t done = std::min(unheard_, block.frames);
    unheard_ -= done;
    while (done < block.frames) {
        // Whole frames only, or a full ring would cut one in two.
        const size_t room = (setup_.transform.toDsd ? dsd_.space() : pcm_.space()) / channels_;
        const size_t n = std::min(room, block.frames - done);
        if (n > 0) {
            if (setup_.transform.toDsd)
                dsd_.write(block.dsd.data() + done * channels_, n * channels_);
            else
                pcm_.write(block.pcm.data() + done * channels_, n * channels_);
            done += n;
            produced_.fetch_add(static_cast<int64_t>(n), std::memory_order_release);
            continue;
        }
        if (!waitForRoom())
            return false;
    }
    const std::lock_guard lock(mutex_);
    return !ending_;
}

bool Deck::waitForRoom()
{
    std::unique_lock lock(mutex_);
    if (!ending_)
        wake_.wait_for(lock, std::chrono::milliseconds(setup_.clocked ? 20 : 1));
    return !ending_;
}

bool Deck::markDue() const
{
    const DeckMark *mark = marks_.peek();
    return mark && mark->frame <= consumed_.load(std::memory_order_relaxed);
}

std::optional<DeckMark> Deck::takeMark()
{
    if (!markDue())
        return std::nullopt;
    DeckMark taken;
    marks_.pop(taken);
    return taken;
}

size_t Deck::framesUntilMark(size_t frames) const
{
    const DeckMark *mark = marks_.peek();
    if (!mark)
        return frames;
    const int64_t distance = mark->frame - consumed_.load(std::memory_order_relaxed);
    return distance <= 0 ? frames : std::min(frames, static_cast<size_t>(distance));
}

template<typename T>
size_t Deck::readFrom(SpscRing<T> &ring, T *out, size_t frames)
{
    frames = std::min(framesUntilMark(frames), ring.available() / channels_);
    ring.read(out, frames * channels_);
    consumed_.fetch_add(static_cast<int64_t>(frames), std::memory_order_release);
    return frames;
}

size_t Deck::read(double *out, size_t frames)
{
    return readFrom(pcm_, out, frames);
}

size_t Deck::read(uint8_t *out, size_t frames)
{
    return readFrom(dsd_, out, frames);
}

size_t Deck::available() const
{
    return (setup_.transform.toDsd ? dsd_.available() : pcm_.available()) / channels_;
}

bool Deck::finished() const
{
    const int64_t end = endFrame_.load(std::memory_order_acquire);
    return end >= 0 && consumed_.load(std::memory_order_relaxed) >= end;
}

int64_t Deck::framesLeft() const
{
    const int64_t end = expectedEnd_.load(std::memory_order_acquire);
    return end < 0 ? -1 : std::max<int64_t>(0, end - consumed_.load(std::memory_order_relaxed));
}

} // namespace kelp_core
