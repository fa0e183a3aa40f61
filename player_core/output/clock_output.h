#pragma once

#include "player_core/output/frame_clock.h"
#include "player_core/output/output.h"
#include "player_core/output/wake_event.h"

#include <atomic>

namespace kelp_core {

/// A device for a computer without one: takes PCM in real time and throws it away. Threads as at Output.
class ClockOutput : public Output
{
public:
    /// opened.wire is the format it pretends to run at.
    explicit ClockOutput(OpenedOutput opened);

    const OpenedOutput &opened() const override { return opened_; }
    [[nodiscard]] long write(const uint8_t *frames, size_t count) override;
    int64_t delayFrames() override;
    void drain() override;
    void drop() override { clock_.drop(); }
    void interrupt() override { wake_.signal(); }
    unsigned underruns() const override { return underruns_; }
    std::string message() const override { return {}; }
    double latencyMs() const override { return latencyMs_; }

private:
    OpenedOutput opened_;
    FrameClock clock_;
    WakeEvent wake_;
    std::atomic<unsigned> underruns_{0};
    std::atomic<double> latencyMs_{-1.0};
};

} // namespace kelp_core
