#include "player_core/output/clock_output.h"

#include "player_core/output/paced_wait.h"

#include <algorithm>

namespace kelp_core {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto bufferTime = 200ms;
constexpr int periodsPerSecond = 40;

} // namespace

ClockOutput::ClockOutput(OpenedOutput opened)
    : opened_(std::move(opened))
    , clock_(opened_.wire.frameRateHz, opened_.wire.frameRateHz * bufferTime / 1s)
{
}

long ClockOutput::write(const uint8_t *, size_t count)
{
    const size_t period = static_cast<size_t>(std::max(1, opened_.wire.frameRateHz / periodsPerSecond));
    if (wake_.take() || !waitForRoom(clock_, wake_, std::min(count, period)))
        return 0;
    const int64_t taken = std::min(static_cast<int64_t>(count), clock_.room(Clock::now()));
    clock_.push(taken, Clock::now());
    underruns_ = clock_.underruns();
    latencyMs_ = static_cast<double>(delayFrames()) * 1000.0 / opened_.wire.frameRateHz;
    return static_cast<long>(taken);
}

int64_t ClockOutput::delayFrames()
{
    return clock_.pending(Clock::now());
}

void ClockOutput::drain()
{
    wake_.waitFor(std::chrono::nanoseconds(1s) * delayFrames() / opened_.wire.frameRateHz);
    clock_.drop();
}

} // namespace kelp_core
