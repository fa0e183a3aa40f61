#pragma once

#include "player_core/output/alsa_pcm.h"
#include "player_core/output/channel_order.h"
#include "player_core/output/device_reservation.h"
#include "player_core/output/frame_clock.h"
#include "player_core/output/output.h"
#include "player_core/output/wake_event.h"

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

#include <poll.h>

namespace kelp_core {

/// An ALSA PCM that is opened (non-blocking) and set up. Threads as at Output.
class AlsaOutput : public Output
{
public:
    struct Parts
    {
        std::unique_ptr<DeviceReservation> reservation; ///< may be null; given back after the PCM is closed
        PcmHandle pcm;
        PcmSetup setup;
        OpenedOutput opened;
        bool takesAtOnce = false;  ///< it ends at a null device, so nothing is ever pending in it
        bool paced = false;        ///< such a PCM is to be fed in real time all the same
        std::vector<size_t> order; ///< of the channels, as orderFor() gives it
    };
    explicit AlsaOutput(Parts parts);
    ~AlsaOutput() override;

    const OpenedOutput &opened() const override { return opened_; }
    [[nodiscard]] long write(const uint8_t *frames, size_t count) override;
    int64_t delayFrames() override;
    void drain() override;
    void drop() override;
    void interrupt() override { wake_.signal(); }
    unsigned underruns() const override { return underruns_; }
    std::string message() const override;
    double latencyMs() const override { return latencyMs_; }

private:
    using Clock = std::chrono::steady_clock;

    long writeDevice(const uint8_t *frames, size_t count);
    long writePaced(const uint8_t *frames, size_t count);
    bool recover(int error);
    bool waitForDevice(Clock::time_point deadline);
    void drainClocked();
    int64_t deviceDelay();
    void noteLatency();
    long fail(int error);

    OpenedOutput opened_;
    std::unique_ptr<DeviceReservation> reservation_; ///< above pcm_, so that it goes after it
    PcmHandle pcm_;
    PcmSetup setup_;
    bool takesAtOnce_;
    ChannelShuffle shuffle_;
    std::optional<FrameClock> clock_; ///< only when paced; audio thread
    std::vector<pollfd> descriptors_; ///< wake_ first, then the PCM's; audio thread
    WakeEvent wake_;
    std::atomic<unsigned> underruns_{0};
    std::atomic<int> failure_{0};
    std::atomic<double> latencyMs_{-1.0};
};

} // namespace kelp_core
