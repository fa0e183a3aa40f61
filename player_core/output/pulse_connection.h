#pragma once

#include "player_core/output/wake_event.h"

#include <pulse/pulseaudio.h>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace kelp_core {

/// A sink as the sound server describes it.
struct SinkFacts
{
    uint32_t index = 0;
    std::string name;
    std::string description;
    int rateHz = 0;
    std::string format; ///< as the server spells it: "s16le"
    int channels = 0;
    int volumePercent = 100;
    double volumeDb = 0.0; ///< loudest channel; −200 for silence
    bool muted = false;
    int card = -1; ///< of ALSA, −1 when it is none
    bool isDefault = false;
};

/// A connection to the listener's PulseAudio server with a thread of its own. Never starts a server. All
/// waits are bounded. Used by one thread at a time, save what is said otherwise.
class PulseConnection
{
public:
    /// Null when there is no server; why then says so in one sentence. Takes at most about two seconds.
    static std::unique_ptr<PulseConnection> connect(std::string &why);
    ~PulseConnection();
    PulseConnection(const PulseConnection &) = delete;
    PulseConnection &operator=(const PulseConnection &) = delete;

    /// All sinks, the default one marked. Empty when the server does not answer.
    std::vector<SinkFacts> sinks();
    /// The sink of that name, or the default one for an empty name.
    std::optional<SinkFacts> sink(const std::string &name);
    /// "PulseAudio 16.1 on host"; empty when the server does not answer.
    std::string serverName();

    /// Held while any function of libpulse is called. Any thread but the connection's own.
    class Lock
    {
    public:
        explicit Lock(PulseConnection &connection)
            : loop_(connection.loop_)
        {
            pa_threaded_mainloop_lock(loop_);
        }
        ~Lock() { pa_threaded_mainloop_unlock(loop_); }
        Lock(const Lock &) = delete;
        Lock &operator=(const Lock &) = delete;

    private:
        pa_threaded_mainloop *loop_;
    };

    pa_context *context() const { return context_; }
    /// Set by callbacks whenever something has changed; the waiting thread looks again. Any thread.
    void progress() { progress_.signal(); }
    /// Waits until done() says true, called under the lock at each change. False when the time is over.
    bool waitUntil(const std::function<bool()> &done, std::chrono::milliseconds time);
    /// Waits for an operation and releases it. False when it failed, was cancelled or took too long.
    bool finish(pa_operation *operation);

private:
    PulseConnection() = default;
    std::string start();

    pa_threaded_mainloop *loop_ = nullptr;
    pa_context *context_ = nullptr;
    WakeEvent progress_;
};

} // namespace kelp_core
