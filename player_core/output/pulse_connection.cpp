#include "player_core/output/pulse_connection.h"

#include "player_core/output/pulse_library.h"

#include <cstdlib>

namespace kelp_core {
namespace {

using namespace std::chrono_literals;

constexpr auto connectTime = 2000ms;
constexpr auto operationTime = 2000ms;
constexpr double silenceDb = -200.0;

void onContextState(pa_context *, void *connection)
{
    static_cast<PulseConnection *>(connection)->progress();
}

/// What the callbacks of one question write to; read after finish() has seen the operation's end.
struct Question
{
    PulseConnection *connection;
    std::vector<SinkFacts> sinks;
    std::string defaultSink;
    std::string server;
};

SinkFacts factsOf(const pa_sink_info &info)
{
    SinkFacts facts;
    facts.index = info.index;
    facts.name = info.name ? info.name : "";
    facts.description = info.description ? info.description : facts.name;
    facts.rateHz = static_cast<int>(info.sample_spec.rate);
    const char *format = pa_sample_format_to_string(info.sample_spec.format);
    facts.format = format ? format : "";
    facts.channels = info.sample_spec.channels;
    const pa_volume_t volume = pa_cvolume_max(&info.volume);
    facts.volumePercent =
        static_cast<int>((static_cast<uint64_t>(volume) * 100 + PA_VOLUME_NORM / 2) / PA_VOLUME_NORM);
    const double db = pa_sw_volume_to_dB(volume);
    facts.volumeDb = db < silenceDb ? silenceDb : db;
    facts.muted = info.mute != 0;
    const char *card = pa_proplist_gets(info.proplist, "alsa.card");
    facts.card = card ? std::atoi(card) : -1;
    return facts;
}

void onSink(pa_context *, const pa_sink_info *info, int, void *data)
{
    auto *question = static_cast<Question *>(data);
    if (info)
        question->sinks.push_back(factsOf(*info));
    question->connection->progress();
}

void onServer(pa_context *, const pa_server_info *info, void *data)
{
    auto *question = static_cast<Question *>(data);
    if (info) {
        question->defaultSink = info->default_sink_name ? info->default_sink_name : "";
        question->server = std::string(info->server_name ? info->server_name : "sound server") + " " +
                           (info->server_version ? info->server_version : "");
    }
    question->connection->progress();
}

} // namespace

std::unique_ptr<PulseConnection> PulseConnection::connect(std::string &why)
{
    std::unique_ptr<PulseConnection> connection(new PulseConnection);
    why = connection->start();
    if (!why.empty())
        return nullptr;
    return connection;
}

std::string PulseConnection::start()
{
    if (!loadPulseLibrary())
        return "The client library of PulseAudio (libpulse) is not installed.";
    loop_ = pa_threaded_mainloop_new();
    if (!loop_)
        return "The sound server's client library gave no main loop.";
    pa_threaded_mainloop_set_name(loop_, "kelp-pulse");
    context_ = pa_context_new(pa_threaded_mainloop_get_api(loop_), "KelpPlayer");
    if (!context_)
        return "The sound server's client library gave no context.";
    pa_context_set_state_callback(context_, onContextState, this);
    if (pa_context_connect(context_, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        return std::string("There is no PulseAudio server (") + pa_strerror(pa_context_errno(context_)) +
               ").";
    if (pa_threaded_mainloop_start(loop_) < 0)
        return "The sound server's client library could not start its thread.";
    const auto settled = [this] {
        const pa_context_state_t state = pa_context_get_state(context_);
        return state == PA_CONTEXT_READY || !PA_CONTEXT_IS_GOOD(state);
    };
    const bool inTime = waitUntil(settled, connectTime);
    const Lock lock(*this);
    if (!inTime)
        return "The PulseAudio server does not answer.";
    if (pa_context_get_state(context_) != PA_CONTEXT_READY)
        return std::string("There is no PulseAudio server (") + pa_strerror(pa_context_errno(context_)) +
               ").";
    return {};
}

PulseConnection::~PulseConnection()
{
    if (context_) {
        {
            const Lock lock(*this);
            pa_context_set_state_callback(context_, nullptr, nullptr);
            pa_context_disconnect(context_);
        }
        pa_threaded_mainloop_stop(loop_);
        pa_context_unref(context_);
    }
    if (loop_)
        pa_threaded_mainloop_free(loop_);
}

bool PulseConnection::waitUntil(const std::function<bool()> &done, std::chrono::milliseconds time)
{
    const auto deadline = std::chrono::steady_clock::now() + time;
    while (true) {
        {
            const Lock lock(*this);
            if (done())
                return true;
        }
        const auto left = deadline - std::chrono::steady_clock::now();
        if (left.count() <= 0)
            return false;
        progress_.waitFor(left);
    }
}

bool PulseConnection::finish(pa_operation *operation)
{
    if (!operation)
        return false;
    const bool ended = waitUntil(
        [operation] { return pa_operation_get_state(operation) != PA_OPERATION_RUNNING; }, operationTime);
    const Lock lock(*this);
    const bool done = ended && pa_operation_get_state(operation) == PA_OPERATION_DONE;
    if (!ended)
        pa_operation_cancel(operation); // its callback must not reach what is about to go
    pa_operation_unref(operation);
    return done;
}

std::vector<SinkFacts> PulseConnection::sinks()
{
    Question question{this, {}, {}, {}};
    pa_operation *servers = nullptr;
    pa_operation *list = nullptr;
    {
        const Lock lock(*this);
        servers = pa_context_get_server_info(context_, onServer, &question);
        list = pa_context_get_sink_info_list(context_, onSink, &question);
    }
    const bool known = finish(servers);
    if (!finish(list) || !known)
        return {};
    for (SinkFacts &facts : question.sinks)
        facts.isDefault = facts.name == question.defaultSink;
    return question.sinks;
}

std::optional<SinkFacts> PulseConnection::sink(const std::string &name)
{
    for (SinkFacts &facts : sinks())
        if (name.empty() ? facts.isDefault : facts.name == name)
            return facts;
    return std::nullopt;
}

std::string PulseConnection::serverName()
{
    Question question{this, {}, {}, {}};
    pa_operation *operation = nullptr;
    {
        const Lock lock(*this);
        operation = pa_context_get_server_info(context_, onServer, &question);
    }
    finish(operation);
    return question.server;
}

} // namespace kelp_core
