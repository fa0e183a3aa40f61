#pragma once

#include "player_core/dsp/meters.h"
#include "player_core/dsp/pdm_decimator.h"
#include "player_core/session/audio_loop.h"
#include "player_core/session/line_writer.h"
#include "player_core/session/mailbox.h"
#include "player_core/session/track_book.h"

#include <chrono>
#include <condition_variable>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace kelp_core {

/// Where the listener is. Plain value.
struct HeardPosition
{
    uint32_t serial = 0; ///< 0: no track is heard
    double seconds = 0;
    double speed = 1.0; ///< seconds of the track in one second, as it is heard
};

/// Tells the host what is heard: positions, levels, spectrum, scope, and the start and end of tracks at the
/// moment when they reach the converter, which is later than when they were written.
///
/// A thread of its own looks at the audio thread's events, board and taps forty times a second or more often,
/// writes lines, and posts what the session must decide on.
class Telemetry
{
public:
    Telemetry(LineWriter &lines, Mailbox &mailbox, const TrackBook &book);
    ~Telemetry();
    Telemetry(const Telemetry &) = delete;
    Telemetry &operator=(const Telemetry &) = delete;

    // Session thread.
    /// opening: the number that a message on the device's end carries.
    void attach(AudioLoop &loop, const Output &output, uint32_t opening);
    /// Both may be destroyed afterwards; what was not heard yet is forgotten.
    void detach();
    /// The listener has chosen this track: nothing of an earlier one is told any more.
    void expect(uint32_t serial);
    void setSpectrum(bool on);
    void setScope(bool on);
    HeardPosition heard();

private:
    using Clock = std::chrono::steady_clock;

    void run();
    void tick(Clock::time_point now);
    void takeEvents();
    void handlePending(uint64_t heardFrames);
    void startTrack(const AudioEvent &event);
    void moveTo(const AudioEvent &event);
    void endTrack(const AudioEvent &event);
    void takeSamples();
    void sayLevels();
    void saySpectrumHead();
    void sayWaveHead();
    void sayProgress(const PlaybackState &state);
    void saySegment(double seconds);
    void sayLatency();
    void tellGuard(const PlaybackState &state);
    double positionSec(const PlaybackState &state) const;

    LineWriter &lines_;
    Mailbox &mailbox_;
    const TrackBook &book_;

    std::mutex mutex_; // guards all that follows but the thread
    std::condition_variable wake_;
    bool ending_ = false;
    bool attached_ = false; ///< a moment ago: look at once
    AudioLoop *loop_ = nullptr;
    const Output *output_ = nullptr;
    uint32_t opening_ = 0;
    bool dsd_ = false;
    int frameRateHz_ = 0;
    std::deque<AudioEvent> pending_; ///< not heard yet
    uint32_t expected_ = 0;
    std::optional<TrackInfo> track_; ///< heard now
    double placeSec_ = 0;            ///< where the part of it begins that is heard now
    double speed_ = 1.0;             ///< of that part
    uint32_t guardTold_ = 0;         ///< the last track of which it was told that the peak guard acts
    int segment_ = 0;
    bool spectrumOn_ = false;
    bool scopeOn_ = false;
    LevelMeter levels_;
    std::unique_ptr<SpectrumAnalyser> spectrum_;
    std::unique_ptr<WaveformBuckets> scope_;
    std::unique_ptr<PdmDecimator> levelDecoder_;
    std::vector<double> samples_;
    std::vector<uint8_t> bits_;
    Clock::time_point nextLevels_{};
    Clock::time_point nextProgress_{};
    Clock::time_point nextLatency_{};
    double latencySeenMs_ = -1;
    double latencyToldMs_ = -1;
    std::thread thread_;
};

} // namespace kelp_core
