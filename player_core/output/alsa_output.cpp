#include "player_core/output/alsa_output.h"

#include "player_core/output/alsa_messages.h"
#include "player_core/output/paced_wait.h"

#include <algorithm>

namespace kelp_core {
namespace {

using namespace std::chrono_literals;

constexpr auto longestWait = 200ms;
constexpr auto drainGrace = 500ms;
constexpr auto shortStep = 5ms; ///< where the device has no event to wait for
constexpr auto bufferTime = 200ms;
/// Stands in failure_ for a card that another program asked for; no error number of the system.
constexpr int reservationLost = -100000;

} // namespace

AlsaOutput::AlsaOutput(Parts parts)
    : opened_(std::move(parts.opened))
    , reservation_(std::move(parts.reservation))
    , pcm_(std::move(parts.pcm))
    , setup_(parts.setup)
    , takesAtOnce_(parts.takesAtOnce)
    , shuffle_(std::move(parts.order), static_cast<size_t>(bytesPerSample(opened_.wire.encoding)),
               setup_.periodFrames)
{
    if (parts.paced)
        clock_.emplace(opened_.wire.frameRateHz, opened_.wire.frameRateHz * bufferTime / 1s);
    const int count = std::max(0, snd_pcm_poll_descriptors_count(pcm_.get()));
    descriptors_.resize(static_cast<size_t>(count) + 1);
    descriptors_[0] = {wake_.descriptor(), POLLIN, 0};
    snd_pcm_poll_descriptors(pcm_.get(), descriptors_.data() + 1, static_cast<unsigned>(count));
}

AlsaOutput::~AlsaOutput()
{
    const AlsaMessages quiet;
    // A PCM that takes everything at once has been "heard" at once: what its file still buffers belongs in
    // it.
    if (takesAtOnce_)
        snd_pcm_drain(pcm_.get());
    else
        snd_pcm_drop(pcm_.get());
}

long AlsaOutput::fail(int error)
{
    failure_ = error;
    return -1;
}

std::string AlsaOutput::message() const
{
    const int error = failure_;
    if (error == 0)
        return {};
    if (error == reservationLost)
        return "The sound card of " + opened_.device + " was given to another program that asked for it.";
    if (error == -ENODEV || error == -ENXIO || error == -EBADFD)
        return "The sound device " + opened_.device + " has gone (" + alsaErrorText(error) + ").";
    return "The sound device " + opened_.device + " failed (" + alsaErrorText(error) + ").";
}

long AlsaOutput::write(const uint8_t *frames, size_t count)
{
    if (failure_ != 0)
        return -1;
    if (reservation_ && reservation_->lost())
        return fail(reservationLost);
    if (count == 0)
        return 0;
    if (shuffle_.active()) {
        count = std::min(count, shuffle_.mostFrames());
        frames = shuffle_.apply(frames, count);
    }
    const long taken = clock_ ? writePaced(frames, count) : writeDevice(frames, count);
    if (taken > 0)
        noteLatency();
    return taken;
}

long AlsaOutput::writePaced(const uint8_t *frames, size_t count)
{
    if (!waitForRoom(*clock_, wake_, std::min<size_t>(count, setup_.periodFrames)))
        return 0;
    const size_t room = static_cast<size_t>(clock_->room(Clock::now()));
    const long taken = writeDevice(frames, std::min(count, room));
    if (taken > 0)
        clock_->push(taken, Clock::now());
    underruns_ = clock_->underruns();
    return taken;
}

long AlsaOutput::writeDevice(const uint8_t *frames, size_t count)
{
    if (wake_.take())
        return 0;
    const auto deadline = Clock::now() + longestWait;
    // No more than a buffer at once: plugins may take any amount without looking up.
    const snd_pcm_uframes_t most = std::min<snd_pcm_uframes_t>(count, setup_.bufferFrames);
    while (true) {
        const snd_pcm_sframes_t taken = snd_pcm_writei(pcm_.get(), frames, most);
        if (taken > 0)
            return taken;
        const int error = static_cast<int>(taken);
        if (error != 0 && error != -EAGAIN && error != -EINTR) {
            if (!recover(error))
                return fail(error);
            if (Clock::now() < deadline)
                continue;
        }
        if (!waitForDevice(deadline))
            return 0;
    }
}

/// Brings the PCM back after an underrun or a suspend; false when it is beyond that.
bool AlsaOutput::recover(int error)
{
    if (error == -EPIPE) {
        ++underruns_;
        return snd_pcm_prepare(pcm_.get()) >= 0;
    }
    if (error != -ESTRPIPE)
        return false;
    const int resumed = snd_pcm_resume(pcm_.get());
    if (resumed == -EAGAIN) { // The driver is still waking up.
        wake_.waitFor(shortStep);
        return true;
    }
    return resumed >= 0 || snd_pcm_prepare(pcm_.get()) >= 0;
}

/// False when interrupted or when the time is over.
bool AlsaOutput::waitForDevice(Clock::time_point deadline)
{
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
    if (left.count() <= 0)
        return false;
    ::poll(descriptors_.data(), descriptors_.size(), static_cast<int>(left.count()));
    if (descriptors_[0].revents != 0 && wake_.take())
        return false;
    unsigned short events = 0;
    snd_pcm_poll_descriptors_revents(pcm_.get(), descriptors_.data() + 1,
                                     static_cast<unsigned>(descriptors_.size() - 1), &events);
    if ((events & POLLOUT) == 0 && wake_.waitFor(shortStep)) // e.g. an error flag, which returns at once
        return false;
    return Clock::now() < deadline;
}

int64_t AlsaOutput::deviceDelay()
{
    if (takesAtOnce_)
        return 0;
    // Some plugins fail to tell the delay before they start, or tell less than they hold.
    snd_pcm_sframes_t delay = 0;
    if (snd_pcm_delay(pcm_.get(), &delay) < 0)
        delay = 0;
    const snd_pcm_sframes_t room = snd_pcm_avail_update(pcm_.get());
    const int64_t held = room < 0 ? 0 : static_cast<int64_t>(setup_.bufferFrames) - room;
    return std::max<int64_t>({0, delay, held});
}

int64_t AlsaOutput::delayFrames()
{
    return clock_ ? clock_->pending(Clock::now()) : deviceDelay();
}

void AlsaOutput::noteLatency()
{
    latencyMs_ = static_cast<double>(delayFrames()) * 1000.0 / opened_.wire.frameRateHz;
}

void AlsaOutput::drain()
{
    if (failure_ != 0)
        return;
    if (!takesAtOnce_)
        return drainClocked();
    if (clock_) {
        const int64_t pending = clock_->pending(Clock::now());
        wake_.waitFor(std::chrono::nanoseconds(1s) * pending / opened_.wire.frameRateHz);
        clock_->drop();
    }
    snd_pcm_drain(pcm_.get());
    snd_pcm_prepare(pcm_.get());
}

void AlsaOutput::drainClocked()
{
    if (wake_.take())
        return;
    const auto pending = std::chrono::nanoseconds(1s) * deviceDelay() / opened_.wire.frameRateHz;
    const auto deadline = Clock::now() + pending + drainGrace;
    // A non-blocking PCM says EAGAIN while it plays out what it has.
    int result = snd_pcm_drain(pcm_.get());
    while (result == -EAGAIN && snd_pcm_state(pcm_.get()) == SND_PCM_STATE_DRAINING &&
           Clock::now() < deadline)
        if (wake_.waitFor(shortStep))
            break;
    snd_pcm_drop(pcm_.get());
    snd_pcm_prepare(pcm_.get());
}

void AlsaOutput::drop()
{
    if (failure_ != 0)
        return;
    if (clock_)
        clock_->drop();
    if (!takesAtOnce_)
        snd_pcm_drop(pcm_.get());
    else
        snd_pcm_drain(pcm_.get());
    snd_pcm_prepare(pcm_.get());
}

} // namespace kelp_core
