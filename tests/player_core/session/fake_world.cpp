#include "player_core/session/fake_world.h"

#include "tests/support/patience.h"

#include <algorithm>
#include <chrono>
#include <cstring>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace kelp_core::test {

namespace {

using Clock = std::chrono::steady_clock;

/// Of a clocked device's clock from one look to the next.
constexpr std::chrono::milliseconds longestStep{3};

class FakeSource : public Source
{
public:
    explicit FakeSource(const FakeTrack &track)
        : track_(track)
    {
        facts_.format = track.format;
        facts_.formatWord = track.format.isDsd() ? "dsd" : "wav";
        facts_.description = "a made-up track";
        facts_.lossless = track.lossless;
        facts_.gains = track.gains;
        facts_.totalFrames = track.lengthKnown ? track.frames : -1;
    }

    const SourceFacts &facts() const override { return facts_; }

    ReadOutcome read(AudioBlock &block, size_t maxFrames) override
    {
        block.clear();
        const int64_t end = track_.failAt >= 0 ? std::min(track_.failAt, track_.frames) : track_.frames;
        if (at_ >= end)
            return track_.failAt >= 0 ? ReadOutcome{ReadStatus::failed, "the file ends too early"}
                                      : ReadOutcome{};
        if (at_ == track_.stallAt)
            std::this_thread::sleep_for(track_.stall);
        while (at_ == track_.stallAt && track_.hung && *track_.hung)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        const int64_t until = at_ < track_.stallAt ? std::min(track_.stallAt, end) : end;
        const int64_t n = std::min<int64_t>(until - at_, static_cast<int64_t>(maxFrames));
        if (track_.plain)
            block.dsd.assign(static_cast<size_t>(n * track_.format.channels), 0x96);
        for (int64_t f = at_; f < at_ + n && !track_.plain; ++f) {
            for (int c = 0; c < track_.format.channels; ++c) {
                const int16_t s = fakeSample(track_.seed, f, c);
                if (track_.format.isDsd())
                    block.dsd.push_back(static_cast<uint8_t>(s));
                else
                    block.pcm.push_back(track_.scale * s / 32768.0);
            }
        }
        block.frames = static_cast<size_t>(n);
        at_ += n;
        return {ReadStatus::frames, {}};
    }

    bool seekFrame(int64_t frame) override
    {
        at_ = std::min(frame, track_.frames);
        return true;
    }

    std::vector<SourceSegment> segments() const override { return track_.segments; }

private:
    FakeTrack track_;
    SourceFacts facts_;
    int64_t at_ = 0;
};

class FakeOutput : public Output
{
public:
    FakeOutput(FakeDevice &device, const OutputRequest &request)
        : device_(device)
    {
        const StreamFormat &s = request.stream;
        WireFormat &wire = opened_.wire;
        wire.channels = s.channels;
        if (s.isDsd() && device.dsdCarrier && !request.forcePcm) {
            const bool dop = *device.dsdCarrier == Carrier::dop;
            wire.carrier = *device.dsdCarrier;
            wire.encoding = dop ? SampleEncoding::s24in3 : SampleEncoding::dsdU8;
            wire.frameRateHz = s.rateHz / (dop ? 16 : 8);
            wire.validBits = dop ? 24 : 1;
        } else {
            wire.encoding = device.validBits == 16 ? SampleEncoding::s16 : SampleEncoding::s32;
            wire.validBits = device.validBits;
            wire.frameRateHz = s.isDsd() ? 176400 : s.rateHz;
        }
        opened_.pcmRateHz = wire.carrier == Carrier::pcm ? wire.frameRateHz : 0;
        opened_.device = "fake";
        opened_.backend = "fake device";
        opened_.clocked = device.clocked;
        if (device.readBackKnown)
            opened_.readBack = {true, "fake record", wire.frameRateHz, encodingName(wire.encoding),
                                wire.channels};
        const std::lock_guard lock(device_.mutex);
        ++device_.opened;
        device_.requests.push_back(request);
        lastLook_ = Clock::now();
    }

    ~FakeOutput() override
    {
        const std::lock_guard lock(device_.mutex);
        ++device_.closed;
    }

    const OpenedOutput &opened() const override { return opened_; }

    long write(const uint8_t *frames, size_t count) override
    {
        const int64_t gone = device_.goneAfter.load();
        if (gone >= 0 && written_ >= gone)
            return -1;
        if (opened_.clocked) {
            const auto room = [this] {
                return playedFrames() + static_cast<int64_t>(device_.bufferSec * opened_.wire.frameRateHz) -
                       written_;
            };
            for (int tries = 0; room() <= 0; ++tries) {
                if (interrupted_.exchange(false) || tries == 100)
                    return 0;
                std::this_thread::sleep_for(std::chrono::milliseconds(2));
            }
            count = std::min(count, static_cast<size_t>(room()));
        }
        if (device_.keepBytes) {
            const std::lock_guard lock(device_.mutex);
            device_.bytes.insert(device_.bytes.end(), frames,
                                 frames + count * static_cast<size_t>(opened_.wire.bytesPerFrame()));
        }
        if (device_.countMarkers)
            countMarkers(frames, count);
        written_ += static_cast<int64_t>(count);
        device_.frames += count;
        return static_cast<long>(count);
    }

    int64_t delayFrames() override
    {
        return opened_.clocked ? std::max<int64_t>(0, written_ - playedFrames()) : 0;
    }

    void drain() override
    {
        while (delayFrames() > 0 && !interrupted_.load())
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }

    void drop() override {}
    void interrupt() override { interrupted_.store(true); }
    unsigned underruns() const override { return device_.underruns.load(); }
    std::string message() const override { return "it was pulled out"; }
    double latencyMs() const override { return opened_.clocked ? device_.bufferSec * 1000 : 0; }

private:
    void countMarkers(const uint8_t *frames, size_t count)
    {
        uint64_t wrong = 0;
        for (size_t f = 0; f < count; ++f) {
            const uint8_t marker = (static_cast<size_t>(written_) + f) % 2 ? 0xFA : 0x05;
            wrong += frames[f * 6 + 2] != marker || frames[f * 6 + 5] != marker;
        }
        device_.wrongMarkers += wrong;
    }

    /// By the device's own clock, which no busy machine puts ahead of the test: it moves by a step a look at
    /// most, which is hardly more than write() sleeps from one look to the next, and stands still while the
    /// host is acting.
    int64_t playedFrames()
    {
        const Clock::time_point now = Clock::now();
        const std::chrono::duration<double> since = std::min<Clock::duration>(now - lastLook_, longestStep);
        lastLook_ = now;
        if (device_.hostWaits)
            playedSec_ += since.count();
        return static_cast<int64_t>(playedSec_ * opened_.wire.frameRateHz);
    }

    FakeDevice &device_;
    OpenedOutput opened_;
    int64_t written_ = 0;
    Clock::time_point lastLook_;
    double playedSec_ = 0;
    std::atomic<bool> interrupted_{false};
};

} // namespace

int16_t fakeSample(uint32_t seed, int64_t frame, int channel)
{
    uint64_t x =
        (static_cast<uint64_t>(frame) * 2 + static_cast<uint64_t>(channel) + 1) * 0x9E3779B97F4A7C15ull +
        seed * 0xD1B54A32D192ED03ull;
    x ^= x >> 29;
    x *= 0xBF58476D1CE4E5B9ull;
    return static_cast<int16_t>((x >> 32) | 1); // never silence, so that silence can be told from it
}

FakeWorld::FakeWorld()
{
    [[maybe_unused]] const int ok = ::pipe2(pipe_, O_CLOEXEC);
    reader_ = std::thread([this] { readLines(); });
}

FakeWorld::~FakeWorld()
{
    device.hostWaits = true;
    closeQueue();
    if (session_.joinable())
        session_.join();
    if (pipe_[1] >= 0)
        ::close(pipe_[1]);
    reader_.join();
    ::close(pipe_[0]);
}

SessionServices FakeWorld::services()
{
    SessionServices services;
    services.openSource = [this](const SourceRequest &request) {
        OpenedSource opened;
        const auto it = tracks.find(!request.isoPath.empty()   ? request.isoPath
                                    : !request.cuePath.empty() ? request.cuePath
                                                               : request.path);
        if (it == tracks.end())
            opened.error = "cannot open: no such file";
        else
            opened.source = std::make_unique<FakeSource>(it->second);
        return opened;
    };
    services.openOutput = [this](const OutputRequest &request) {
        OutputOutcome outcome;
        outcome.error = device.refuse;
        if (device.refuse.empty())
            outcome.output = std::make_unique<FakeOutput>(device, request);
        return outcome;
    };
    return services;
}

void FakeWorld::start(const std::vector<std::string> &args)
{
    session_ = std::thread([this, args] {
        const ParsedCommand command = parseCommandLine(args);
        int code = exit_code::usage;
        if (command.kind == CommandKind::session) {
            LineWriter lines(pipe_[1], {});
            Session session(command.options, services(), lines);
            code = session.run({-1, &FakeWorld::readQueue, queue_});
        }
        ::close(std::exchange(pipe_[1], -1));
        const std::lock_guard lock(mutex_);
        code_ = code;
        changed_.notify_all();
    });
}

FakeWorld::Queue *FakeWorld::newQueue()
{
    static std::mutex mutex;
    static auto *all = new std::vector<std::unique_ptr<Queue>>; // not destroyed at exit either
    const std::lock_guard lock(mutex);
    all->push_back(std::make_unique<Queue>());
    return all->back().get();
}

void FakeWorld::send(const std::string &line)
{
    const std::lock_guard lock(queue_->mutex);
    queue_->lines.push_back(line);
    queue_->changed.notify_all();
}

void FakeWorld::closeQueue()
{
    const std::lock_guard lock(queue_->mutex);
    queue_->closed = true;
    queue_->changed.notify_all();
}

int FakeWorld::readQueue(void *address, char *buffer, int size)
{
    auto *queue = static_cast<Queue *>(address);
    std::unique_lock lock(queue->mutex);
    queue->changed.wait(lock, [queue] { return queue->closed || !queue->lines.empty(); });
    if (queue->lines.empty())
        return 0;
    const std::string line = queue->lines.front();
    queue->lines.pop_front();
    if (line.size() >= static_cast<size_t>(size))
        return -1;
    std::memcpy(buffer, line.c_str(), line.size() + 1);
    return static_cast<int>(line.size());
}

bool FakeWorld::waitFor(std::unique_lock<std::mutex> &lock, const std::function<bool()> &done)
{
    device.hostWaits = true;
    const bool isDone = changed_.wait_for(lock, kelp_test::patience, done);
    device.hostWaits = false;
    return isDone;
}

bool FakeWorld::waitFrames(uint64_t frames)
{
    device.hostWaits = true;
    const bool came = kelp_test::waitUntil([&] { return device.frames >= frames; });
    device.hostWaits = false;
    return came;
}

int FakeWorld::wait()
{
    std::unique_lock lock(mutex_);
    waitFor(lock, [this] { return code_.has_value() && allRead_; });
    return code_.value_or(-1000);
}

std::string FakeWorld::waitLine(const std::string &prefix)
{
    std::unique_lock lock(mutex_);
    std::string found;
    waitFor(lock, [&] {
        for (; waited_ < lines_.size(); ++waited_) {
            if (lines_[waited_].starts_with(prefix)) {
                found = lines_[waited_++];
                return true;
            }
        }
        return false;
    });
    return found;
}

std::vector<std::string> FakeWorld::lines(const std::string &prefix)
{
    const std::lock_guard lock(mutex_);
    std::vector<std::string> result;
    std::copy_if(lines_.begin(), lines_.end(), std::back_inserter(result),
                 [&](const std::string &line) { return line.starts_with(prefix); });
    return result;
}

std::vector<int16_t> FakeWorld::written16()
{
    const std::lock_guard lock(device.mutex);
    std::vector<int16_t> samples(device.bytes.size() / 2);
    std::memcpy(samples.data(), device.bytes.data(), samples.size() * 2);
    return samples;
}

void FakeWorld::readLines()
{
    std::string pending;
    char buffer[4096];
    while (true) {
        const ssize_t n = ::read(pipe_[0], buffer, sizeof buffer);
        if (n <= 0)
            break;
        pending.append(buffer, static_cast<size_t>(n));
        const std::lock_guard lock(mutex_);
        for (size_t end = 0; (end = pending.find('\n')) != std::string::npos; pending.erase(0, end + 1))
            lines_.push_back(pending.substr(0, end));
        changed_.notify_all();
    }
    const std::lock_guard lock(mutex_);
    allRead_ = true;
    changed_.notify_all();
}

FakeTrack pcmTrack(int64_t frames, uint32_t seed, int rateHz)
{
    FakeTrack track;
    track.frames = frames;
    track.seed = seed;
    track.format.rateHz = rateHz;
    return track;
}

FakeTrack dsdTrack(int64_t frames, uint32_t seed)
{
    FakeTrack track;
    track.format = {SignalKind::dsd, 2822400, 2, 1, false};
    track.frames = frames;
    track.seed = seed;
    return track;
}

std::vector<int16_t> samplesOf(const FakeTrack &track, int64_t from, int64_t to)
{
    std::vector<int16_t> result;
    for (int64_t f = from; f < (to < 0 ? track.frames : to); ++f)
        for (int c = 0; c < track.format.channels; ++c)
            result.push_back(fakeSample(track.seed, f, c));
    return result;
}

std::vector<int16_t> trimmed(std::vector<int16_t> samples)
{
    while (!samples.empty() && samples.back() == 0)
        samples.pop_back();
    return samples;
}

} // namespace kelp_core::test
