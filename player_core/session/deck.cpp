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
    thread_ = std::thread([this] { run(); });
}

Deck::~Deck()
{
    {
        const std::lock_guard lock(mutex_);
        ending_ = true;
    }
    wake_.notify_one();
    thread_.join();
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
    const double ratio = static_cast<double>(setup_.transform.framesPerSecondOut()) /
                         static_cast<double>(std::max<int64_t>(1, facts.format.framesPerSecond()));
    // A filter's delay shifts what has been produced, never the place in the music: joins are counted by the
    // sources' frames.
    const int64_t start = std::llround(reachedFrames_);
    starts_.push({start, track.serial, track.dither});
    const bool known = facts.totalFrames >= 0;
    const double length =
        known ? static_cast<double>(std::max<int64_t>(0, facts.totalFrames - track.startFrame)) : 0;
    expectedEnd_.store(known ? std::llround(reachedFrames_ + length * ratio) : -1, std::memory_order_release);
}

void Deck::playTrack(DeckTrack &track)
{
    beginTrack(track);
    const SourceFacts &facts = track.source->facts();
    const double ratio = static_cast<double>(setup_.transform.framesPerSecondOut()) /
                         static_cast<double>(std::max<int64_t>(1, facts.format.framesPerSecond()));
    const size_t step = facts.format.isDsd() ? dsdStepFrames : pcmStepFrames;
    AudioBlock in;
    AudioBlock out;
    int64_t read = 0;
    while (true) {
        const ReadOutcome outcome = track.source->read(in, step);
        if (outcome.status != ReadStatus::frames) {
            if (outcome.status == ReadStatus::failed)
                fail(track.serial, outcome.message);
            break;
        }
        read += static_cast<int64_t>(in.frames);
        transform_.process(in, out);
        if (!putAll(out))
            break;
    }
    reachedFrames_ += static_cast<double>(read) * ratio;
}

void Deck::fail(uint32_t serial, const std::string &reason)
{
    if (setup_.onFailed)
        setup_.onFailed(serial, reason);
}

bool Deck::putAll(const AudioBlock &block)
{
    size_t done = 0;
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
        std::unique_lock lock(mutex_);
        if (ending_)
            return false;
        wake_.wait_for(lock, std::chrono::milliseconds(setup_.clocked ? 20 : 1));
    }
    const std::lock_guard lock(mutex_);
    return !ending_;
}

std::optional<TrackStart> Deck::takeTrackStart()
{
    const TrackStart *start = starts_.peek();
    if (!start || start->frame > consumed_.load(std::memory_order_relaxed))
        return std::nullopt;
    TrackStart taken;
    starts_.pop(taken);
    return taken;
}

size_t Deck::framesUntilStart(size_t frames) const
{
    const TrackStart *start = starts_.peek();
    if (!start)
        return frames;
    const int64_t distance = start->frame - consumed_.load(std::memory_order_relaxed);
    return distance <= 0 ? frames : std::min(frames, static_cast<size_t>(distance));
}

template<typename T>
size_t Deck::readFrom(SpscRing<T> &ring, T *out, size_t frames)
{
    frames = std::min(framesUntilStart(frames), ring.available() / channels_);
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
