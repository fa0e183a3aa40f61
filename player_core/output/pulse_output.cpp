#include "player_core/output/pulse_output.h"

#include "player_core/output/channel_order.h"

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace kelp_core {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

constexpr auto longestWait = 200ms;
constexpr auto openTime = 3000ms;
constexpr auto drainGrace = 500ms;
constexpr auto dropTime = 500ms;
constexpr pa_usec_t targetLatencyUs = 200'000;
constexpr pa_usec_t largestLatencyUs = 800'000; ///< after a stream has run dry twice
constexpr pa_usec_t startAfterUs = 50'000;      ///< sound begins when so much is there
constexpr double unityDb = 0.005;

pa_sample_format_t pulseFormat(SampleEncoding encoding)
{
    switch (encoding) {
    case SampleEncoding::s16:
        return PA_SAMPLE_S16LE;
    case SampleEncoding::s24in3:
        return PA_SAMPLE_S24LE;
    case SampleEncoding::s24in4:
        return PA_SAMPLE_S24_32LE;
    case SampleEncoding::s32:
        return PA_SAMPLE_S32LE;
    case SampleEncoding::f32:
        return PA_SAMPLE_FLOAT32LE;
    case SampleEncoding::dsdU8:
    case SampleEncoding::dsdU16le:
    case SampleEncoding::dsdU16be:
    case SampleEncoding::dsdU32le:
    case SampleEncoding::dsdU32be:
        break;
    }
    return PA_SAMPLE_INVALID;
}

pa_sample_spec specOf(const WireFormat &wire)
{
    pa_sample_spec spec;
    spec.format = pulseFormat(wire.encoding);
    spec.rate = static_cast<uint32_t>(wire.frameRateHz);
    spec.channels = static_cast<uint8_t>(wire.channels);
    return spec;
}

pa_buffer_attr bufferFor(pa_usec_t latencyUs, const pa_sample_spec &spec)
{
    pa_buffer_attr buffer;
    buffer.maxlength = static_cast<uint32_t>(-1);
    buffer.tlength = static_cast<uint32_t>(pa_usec_to_bytes(latencyUs, &spec));
    buffer.prebuf = static_cast<uint32_t>(pa_usec_to_bytes(startAfterUs, &spec));
    buffer.minreq = static_cast<uint32_t>(-1);
    buffer.fragsize = static_cast<uint32_t>(-1);
    return buffer;
}

std::string volumeNote(const SinkFacts &sink)
{
    if (sink.muted)
        return "The sound server has muted " + sink.description + ".";
    if (std::abs(sink.volumeDb) < unityDb)
        return {};
    char level[32];
    std::snprintf(level, sizeof level, "%.2f dB", sink.volumeDb);
    return "The sound server plays " + sink.description + " at a volume of " + level +
           ", so it scales the samples.";
}

} // namespace

PulseOutput::PulseOutput(std::unique_ptr<PulseConnection> connection, OpenedOutput opened)
    : connection_(std::move(connection))
    , opened_(std::move(opened))
{
}

bool PulseOutput::carries(const WireFormat &wire)
{
    const pa_sample_spec spec = specOf(wire);
    return wire.carrier == Carrier::pcm && wire.channels <= static_cast<int>(PA_CHANNELS_MAX) &&
           pa_sample_spec_valid(&spec);
}

std::unique_ptr<PulseOutput> PulseOutput::open(std::unique_ptr<PulseConnection> connection,
                                               const SinkFacts &sink, const Wish &wish, OpenedOutput opened,
                                               std::string &why)
{
    if (!carries(wish.wire)) {
        why = "A sound server cannot carry this format.";
        return nullptr;
    }
    opened.wire = wish.wire;
    opened.pcmRateHz = wish.pcmRateHz;
    opened.deviceLabel = sink.description;
    opened.backend = "PulseAudio";
    opened.mixer = true;
    opened.readBack = {true, "sound server", sink.rateHz, sink.format, sink.channels};
    const char *ours = pa_sample_format_to_string(pulseFormat(wish.wire.encoding));
    opened.converts = sink.rateHz != wish.wire.frameRateHz || sink.channels != wish.wire.channels || !ours ||
                      sink.format != ours;
    if (const std::string note = volumeNote(sink); !note.empty())
        opened.notes.push_back(note);
    std::unique_ptr<PulseOutput> output(new PulseOutput(std::move(connection), std::move(opened)));
    if (!output->connectStream(sink.name, why))
        return nullptr;
    return output;
}

bool PulseOutput::connectStream(const std::string &sinkName, std::string &why)
{
    const pa_sample_spec spec = specOf(opened_.wire);
    pa_channel_map map;
    const std::optional<pa_channel_map> told = pulseMapOf(opened_.speakers);
    if (told && told->channels == spec.channels)
        map = *told;
    else
        pa_channel_map_init_extend(&map, spec.channels, PA_CHANNEL_MAP_WAVEEX);
    {
        const PulseConnection::Lock lock(*connection_);
        stream_ = pa_stream_new(connection_->context(), "Music", &spec, &map);
        if (stream_) {
            pa_stream_set_state_callback(stream_, onState, this);
            pa_stream_set_write_callback(stream_, onRoom, this);
            pa_stream_set_underflow_callback(stream_, onUnderflow, this);
            targetUs_ = targetLatencyUs;
            const pa_buffer_attr buffer = bufferFor(targetUs_, spec);
            const auto flags =
                static_cast<pa_stream_flags_t>(PA_STREAM_ADJUST_LATENCY | PA_STREAM_INTERPOLATE_TIMING |
                                               PA_STREAM_AUTO_TIMING_UPDATE | PA_STREAM_DONT_MOVE);
            pa_stream_connect_playback(stream_, sinkName.c_str(), &buffer, flags, nullptr, nullptr);
        }
    }
    const bool settled = stream_ && connection_->waitUntil(
                                        [this] {
                                            const pa_stream_state_t state = pa_stream_get_state(stream_);
                                            return state == PA_STREAM_READY || !PA_STREAM_IS_GOOD(state);
                                        },
                                        openTime);
    const PulseConnection::Lock lock(*connection_);
    if (settled && pa_stream_get_state(stream_) == PA_STREAM_READY)
        return true;
    why = std::string("The sound server opened no stream (") +
          (settled ? pa_strerror(pa_context_errno(connection_->context())) : "it does not answer") + ").";
    return false;
}

PulseOutput::~PulseOutput()
{
    if (!stream_)
        return;
    const PulseConnection::Lock lock(*connection_);
    pa_stream_set_state_callback(stream_, nullptr, nullptr);
    pa_stream_set_write_callback(stream_, nullptr, nullptr);
    pa_stream_set_underflow_callback(stream_, nullptr, nullptr);
    pa_stream_disconnect(stream_);
    pa_stream_unref(stream_);
}

void PulseOutput::onState(pa_stream *, void *self)
{
    auto *output = static_cast<PulseOutput *>(self);
    output->connection_->progress();
    output->wake_.signal();
}

void PulseOutput::onRoom(pa_stream *, size_t, void *self)
{
    static_cast<PulseOutput *>(self)->wake_.signal();
}

void PulseOutput::onUnderflow(pa_stream *, void *self)
{
    auto *output = static_cast<PulseOutput *>(self);
    if (!output->playing_.exchange(false))
        return;
    ++output->underruns_;
    output->enlargeBuffer();
}

/// Under the lock. A machine that was too busy once will be so again, and a later answer to the volume is
/// better than a gap in the music.
void PulseOutput::enlargeBuffer()
{
    if (targetUs_ >= largestLatencyUs)
        return;
    targetUs_ *= 2;
    const pa_buffer_attr buffer = bufferFor(targetUs_, *pa_stream_get_sample_spec(stream_));
    if (pa_operation *operation = pa_stream_set_buffer_attr(stream_, &buffer, nullptr, nullptr))
        pa_operation_unref(operation);
}

void PulseOutput::onDone(pa_stream *, int, void *self)
{
    static_cast<PulseOutput *>(self)->wake_.signal();
}

void PulseOutput::interrupt()
{
    interrupted_ = true;
    wake_.signal();
}

/// Under the lock.
bool PulseOutput::alive() const
{
    return PA_CONTEXT_IS_GOOD(pa_context_get_state(connection_->context())) &&
           PA_STREAM_IS_GOOD(pa_stream_get_state(stream_));
}

std::string PulseOutput::message() const
{
    return failed_ ? "The sound server ended the stream to " + opened_.deviceLabel + " or went away." : "";
}

long PulseOutput::write(const uint8_t *frames, size_t count)
{
    const size_t frameBytes = static_cast<size_t>(opened_.wire.bytesPerFrame());
    const auto deadline = Clock::now() + longestWait;
    while (!interrupted_.exchange(false)) {
        {
            const PulseConnection::Lock lock(*connection_);
            if (!alive()) {
                failed_ = true;
                return -1;
            }
            const size_t room = pa_stream_writable_size(stream_);
            const size_t taken = room == static_cast<size_t>(-1) ? 0 : std::min(count, room / frameBytes);
            if (taken > 0) {
                playing_ = true;
                if (pa_stream_write(stream_, frames, taken * frameBytes, nullptr, 0, PA_SEEK_RELATIVE) < 0) {
                    failed_ = true;
                    return -1;
                }
                noteLatency();
                return static_cast<long>(taken);
            }
        }
        const auto left = deadline - Clock::now();
        if (count == 0 || left.count() <= 0)
            return 0;
        wake_.waitFor(left);
    }
    return 0;
}

/// Under the lock.
void PulseOutput::noteLatency()
{
    pa_usec_t latency = 0;
    int negative = 0;
    if (pa_stream_get_latency(stream_, &latency, &negative) == 0)
        latencyMs_ = negative ? 0.0 : static_cast<double>(latency) / 1000.0;
}

int64_t PulseOutput::delayFrames()
{
    {
        const PulseConnection::Lock lock(*connection_);
        noteLatency();
    }
    return static_cast<int64_t>(std::max(0.0, latencyMs_.load()) * opened_.wire.frameRateHz / 1000.0);
}

/// Waits for an operation of the stream, at most so long, and releases it.
void PulseOutput::finishInterruptibly(pa_operation *operation, std::chrono::milliseconds time)
{
    if (!operation)
        return;
    const auto deadline = Clock::now() + time;
    while (true) {
        {
            const PulseConnection::Lock lock(*connection_);
            const bool over = pa_operation_get_state(operation) != PA_OPERATION_RUNNING;
            const bool givenUp = !over && (Clock::now() >= deadline || interrupted_.exchange(false));
            if (givenUp)
                pa_operation_cancel(operation);
            if (over || givenUp)
                return pa_operation_unref(operation);
        }
        wake_.waitFor(deadline - Clock::now());
    }
}

void PulseOutput::drain()
{
    playing_ = false; // running dry is what is wanted now
    const int64_t pending = delayFrames();
    pa_operation *operation = nullptr;
    {
        const PulseConnection::Lock lock(*connection_);
        if (alive())
            operation = pa_stream_drain(stream_, onDone, this);
    }
    finishInterruptibly(operation, std::chrono::duration_cast<std::chrono::milliseconds>(
                                       1000ms * pending / opened_.wire.frameRateHz + drainGrace));
}

void PulseOutput::drop()
{
    playing_ = false;
    pa_operation *operation = nullptr;
    {
        const PulseConnection::Lock lock(*connection_);
        if (alive())
            operation = pa_stream_flush(stream_, onDone, this);
    }
    finishInterruptibly(operation, dropTime);
}

} // namespace kelp_core
