#pragma once

#include "player_core/session/session.h"

#include <atomic>
#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace kelp_core::test {

/// What a path stands for in a test.
struct FakeTrack
{
    StreamFormat format{SignalKind::pcm, 44100, 2, 16, false};
    int64_t frames = 44100;
    int64_t failAt = -1;  ///< the frame at which reading fails
    int64_t stallAt = -1; ///< the frame at which reading waits once, so long
    std::chrono::milliseconds stall{0};
    std::shared_ptr<std::atomic<bool>> hung; ///< there it waits as long as this is true
    bool lengthKnown = true;
    uint32_t seed = 1; ///< gives each track samples of its own
    bool lossless = true;
    std::vector<SourceSegment> segments;
    double scale = 1.0; ///< of PCM samples
    GainTags gains;
    bool plain = false; ///< every byte of DSD the same, for very long tracks
};

/// A track of 16-bit PCM on two channels.
FakeTrack pcmTrack(int64_t frames, uint32_t seed, int rateHz = 44100);
/// A track of DSD64 on two channels.
FakeTrack dsdTrack(int64_t frames, uint32_t seed);

/// The 16-bit sample of a frame and channel; as DSD its low byte.
int16_t fakeSample(uint32_t seed, int64_t frame, int channel);
/// All samples of a track of PCM, or those between two frames.
std::vector<int16_t> samplesOf(const FakeTrack &track, int64_t from = 0, int64_t to = -1);
/// The samples without the silence at the end (tracks hold no zero).
std::vector<int16_t> trimmed(std::vector<int16_t> samples);

/// What a device took, and how it behaves.
struct FakeDevice
{
    std::mutex mutex;
    std::vector<uint8_t> bytes;          ///< all that was written; guarded by mutex
    std::vector<OutputRequest> requests; ///< guarded by mutex
    int opened = 0;                      ///< guarded by mutex
    int closed = 0;                      ///< guarded by mutex
    bool keepBytes = true;
    bool countMarkers = false;             ///< of 24-bit DoP on two channels
    std::atomic<uint64_t> wrongMarkers{0}; ///< frames whose markers are out of step
    std::atomic<uint64_t> frames{0};
    bool clocked = false;               ///< takes samples at their rate instead of at once
    double bufferSec = 0.1;             ///< of a clocked device
    std::atomic<bool> hostWaits{false}; ///< a clocked device plays only then; the world sees to it
    std::atomic<int64_t> goneAfter{-1}; ///< frames
    std::atomic<unsigned> underruns{0};
    std::string refuse;                ///< openOutput's error
    std::optional<Carrier> dsdCarrier; ///< takes DSD this way; else DSD is decoded
    bool readBackKnown = false;
    int validBits = 16;
};

/// Opens fake sources by name and one fake device, and runs a session on a thread, with its control lines
/// through a queue as a host in the same process has it.
class FakeWorld
{
public:
    FakeWorld();
    ~FakeWorld();

    std::map<std::string, FakeTrack> tracks; ///< by path; set before start()
    FakeDevice device;

    SessionServices services();
    void start(const std::vector<std::string> &args);
    void send(const std::string &line);
    void closeQueue();
    /// Waits for the end; the exit code, or -1000 when the session does not end.
    int wait();
    /// Waits for a line that begins so; its text, or an empty one when none came.
    std::string waitLine(const std::string &prefix);
    /// Waits until the device has taken so many; false when it does not.
    bool waitFrames(uint64_t frames);
    /// Lines so far that begin so.
    std::vector<std::string> lines(const std::string &prefix = {});
    std::vector<int16_t> written16();

private:
    /// A host's queue. An engine that ended by itself may still wait in it, so it is never destroyed, only
    /// closed.
    struct Queue
    {
        std::mutex mutex;
        std::condition_variable changed;
        std::deque<std::string> lines; // guarded by mutex
        bool closed = false;           // guarded by mutex
    };
    static Queue *newQueue();
    static int readQueue(void *queue, char *buffer, int size);
    bool waitFor(std::unique_lock<std::mutex> &lock, const std::function<bool()> &done);
    void readLines();

    Queue *queue_ = newQueue();
    std::mutex mutex_;
    std::condition_variable changed_;
    std::vector<std::string> lines_;
    size_t waited_ = 0; ///< waitLine looks from here on
    std::optional<int> code_;
    bool allRead_ = false;
    int pipe_[2]{-1, -1};
    std::thread session_;
    std::thread reader_;
};

} // namespace kelp_core::test
