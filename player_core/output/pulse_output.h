#pragma once

#include "player_core/output/output.h"
#include "player_core/output/pulse_connection.h"
#include "player_core/output/wake_event.h"
#include "player_core/output/wish_list.h"

#include <atomic>
#include <functional>
#include <memory>
#include <string>

namespace kelp_core {

/// A stream on a PulseAudio server: always shared, always behind the server's mixer, so it carries PCM alone.
/// The server's volume is never touched. Threads as at Output.
///
/// The audio thread takes the lock of the connection for the copy of a period; the connection's own thread
/// holds it for the handling of one message at a time.
class PulseOutput : public Output
{
public:
    /// True when the server knows such a format.
    static bool carries(const WireFormat &wire);
    /// Opens a stream of the wish's format on a sink; carries() must be true for it. Null when the server
    /// refuses; why then says so in one sentence.
    static std::unique_ptr<PulseOutput> open(std::unique_ptr<PulseConnection> connection,
                                             const SinkFacts &sink, const Wish &wish, OpenedOutput opened,
                                             std::string &why);
    ~PulseOutput() override;

    const OpenedOutput &opened() const override { return opened_; }
    [[nodiscard]] long write(const uint8_t *frames, size_t count) override;
    int64_t delayFrames() override;
    void drain() override;
    void drop() override;
    void interrupt() override;
    unsigned underruns() const override { return underruns_; }
    std::string message() const override;
    double latencyMs() const override { return latencyMs_; }

private:
    PulseOutput(std::unique_ptr<PulseConnection> connection, OpenedOutput opened);
    bool connectStream(const std::string &sinkName, std::string &why);
    bool alive() const;
    void noteLatency();
    void enlargeBuffer();
    void finishInterruptibly(pa_operation *operation, std::chrono::milliseconds time);
    static void onRoom(pa_stream *, size_t, void *self);
    static void onUnderflow(pa_stream *, void *self);
    static void onDone(pa_stream *, int success, void *self);
    static void onState(pa_stream *, void *self);

    std::unique_ptr<PulseConnection> connection_;
    OpenedOutput opened_;
    pa_stream *stream_ = nullptr;
    pa_usec_t targetUs_ = 0;           ///< of the buffer; under the connection's lock
    WakeEvent wake_;                   ///< something changed: interrupt() or a callback of the stream
    std::atomic<bool> playing_{false}; ///< frames are expected, so that running dry counts
    std::atomic<bool> interrupted_{false};
    std::atomic<unsigned> underruns_{0};
    std::atomic<bool> failed_{false};
    std::atomic<double> latencyMs_{-1.0};
};

} // namespace kelp_core
