#include "player_core/output/pulse_library.h"

#include <pulse/pulseaudio.h>

#include <dlfcn.h>

/// Name, result, parameters and arguments of each function of libpulse that is used here.
#define KELP_PULSE_FUNCTIONS(X)                                                                              \
    X(pa_channel_map_init, pa_channel_map *, (pa_channel_map * m), (m))                                      \
    X(pa_channel_map_init_extend, pa_channel_map *,                                                          \
      (pa_channel_map * m, unsigned channels, pa_channel_map_def_t def), (m, channels, def))                 \
    X(pa_channel_map_valid, int, (const pa_channel_map *map), (map))                                         \
    X(pa_context_connect, int,                                                                               \
      (pa_context * c, const char *server, pa_context_flags_t flags, const pa_spawn_api *api),               \
      (c, server, flags, api))                                                                               \
    X(pa_context_disconnect, void, (pa_context * c), (c))                                                    \
    X(pa_context_errno, int, (const pa_context *c), (c))                                                     \
    X(pa_context_get_server_info, pa_operation *, (pa_context * c, pa_server_info_cb_t cb, void *userdata),  \
      (c, cb, userdata))                                                                                     \
    X(pa_context_get_sink_info_list, pa_operation *, (pa_context * c, pa_sink_info_cb_t cb, void *userdata), \
      (c, cb, userdata))                                                                                     \
    X(pa_context_get_state, pa_context_state_t, (const pa_context *c), (c))                                  \
    X(pa_context_new, pa_context *, (pa_mainloop_api * mainloop, const char *name), (mainloop, name))        \
    X(pa_context_set_state_callback, void, (pa_context * c, pa_context_notify_cb_t cb, void *userdata),      \
      (c, cb, userdata))                                                                                     \
    X(pa_context_unref, void, (pa_context * c), (c))                                                         \
    X(pa_cvolume_max, pa_volume_t, (const pa_cvolume *a), (a))                                               \
    X(pa_operation_cancel, void, (pa_operation * o), (o))                                                    \
    X(pa_operation_get_state, pa_operation_state_t, (const pa_operation *o), (o))                            \
    X(pa_operation_unref, void, (pa_operation * o), (o))                                                     \
    X(pa_proplist_gets, const char *, (const pa_proplist *p, const char *key), (p, key))                     \
    X(pa_sample_format_to_string, const char *, (pa_sample_format_t f), (f))                                 \
    X(pa_sample_spec_valid, int, (const pa_sample_spec *spec), (spec))                                       \
    X(pa_stream_connect_playback, int,                                                                       \
      (pa_stream * s, const char *dev, const pa_buffer_attr *attr, pa_stream_flags_t flags,                  \
       const pa_cvolume *volume, pa_stream *sync_stream),                                                    \
      (s, dev, attr, flags, volume, sync_stream))                                                            \
    X(pa_stream_disconnect, int, (pa_stream * s), (s))                                                       \
    X(pa_stream_drain, pa_operation *, (pa_stream * s, pa_stream_success_cb_t cb, void *userdata),           \
      (s, cb, userdata))                                                                                     \
    X(pa_stream_flush, pa_operation *, (pa_stream * s, pa_stream_success_cb_t cb, void *userdata),           \
      (s, cb, userdata))                                                                                     \
    X(pa_stream_get_latency, int, (pa_stream * s, pa_usec_t * r_usec, int *negative), (s, r_usec, negative)) \
    X(pa_stream_get_sample_spec, const pa_sample_spec *, (pa_stream * s), (s))                               \
    X(pa_stream_get_state, pa_stream_state_t, (const pa_stream *p), (p))                                     \
    X(pa_stream_new, pa_stream *,                                                                            \
      (pa_context * c, const char *name, const pa_sample_spec *ss, const pa_channel_map *map),               \
      (c, name, ss, map))                                                                                    \
    X(pa_stream_set_buffer_attr, pa_operation *,                                                             \
      (pa_stream * s, const pa_buffer_attr *attr, pa_stream_success_cb_t cb, void *userdata),                \
      (s, attr, cb, userdata))                                                                               \
    X(pa_stream_set_state_callback, void, (pa_stream * s, pa_stream_notify_cb_t cb, void *userdata),         \
      (s, cb, userdata))                                                                                     \
    X(pa_stream_set_underflow_callback, void, (pa_stream * p, pa_stream_notify_cb_t cb, void *userdata),     \
      (p, cb, userdata))                                                                                     \
    X(pa_stream_set_write_callback, void, (pa_stream * p, pa_stream_request_cb_t cb, void *userdata),        \
      (p, cb, userdata))                                                                                     \
    X(pa_stream_unref, void, (pa_stream * s), (s))                                                           \
    X(pa_stream_writable_size, size_t, (const pa_stream *p), (p))                                            \
    X(pa_stream_write, int,                                                                                  \
      (pa_stream * p, const void *data, size_t nbytes, pa_free_cb_t free_cb, int64_t offset,                 \
       pa_seek_mode_t seek),                                                                                 \
      (p, data, nbytes, free_cb, offset, seek))                                                              \
    X(pa_strerror, const char *, (int error), (error))                                                       \
    X(pa_sw_volume_to_dB, double, (pa_volume_t v), (v))                                                      \
    X(pa_threaded_mainloop_free, void, (pa_threaded_mainloop * m), (m))                                      \
    X(pa_threaded_mainloop_get_api, pa_mainloop_api *, (pa_threaded_mainloop * m), (m))                      \
    X(pa_threaded_mainloop_lock, void, (pa_threaded_mainloop * m), (m))                                      \
    X(pa_threaded_mainloop_new, pa_threaded_mainloop *, (), ())                                              \
    X(pa_threaded_mainloop_set_name, void, (pa_threaded_mainloop * m, const char *name), (m, name))          \
    X(pa_threaded_mainloop_start, int, (pa_threaded_mainloop * m), (m))                                      \
    X(pa_threaded_mainloop_stop, void, (pa_threaded_mainloop * m), (m))                                      \
    X(pa_threaded_mainloop_unlock, void, (pa_threaded_mainloop * m), (m))                                    \
    X(pa_usec_to_bytes, size_t, (pa_usec_t t, const pa_sample_spec *spec), (t, spec))

namespace {

struct Functions
{
    bool complete = true;
#define KELP_PULSE_POINTER(name, result, parameters, arguments) decltype(&::name) name##_function = nullptr;
    KELP_PULSE_FUNCTIONS(KELP_PULSE_POINTER)
#undef KELP_PULSE_POINTER
};

template<typename Function>
void find(Functions &functions, void *library, const char *name, Function *&function)
{
    function = reinterpret_cast<Function *>(library ? dlsym(library, name) : nullptr);
    functions.complete = functions.complete && function;
}

/// Loaded by the first question and kept until the process ends.
const Functions &functions()
{
    static const Functions all = [] {
        Functions found;
        void *const library = dlopen("libpulse.so.0", RTLD_LAZY | RTLD_LOCAL);
#define KELP_PULSE_FIND(name, result, parameters, arguments)                                                 \
    find(found, library, #name, found.name##_function);
        KELP_PULSE_FUNCTIONS(KELP_PULSE_FIND)
#undef KELP_PULSE_FIND
        return found;
    }();
    return all;
}

} // namespace

namespace kelp_core {

bool loadPulseLibrary()
{
    return functions().complete;
}

} // namespace kelp_core

// libpulse's own names, so that whoever calls them does not see the difference. Hidden: the library itself
// goes on calling its own. Without the library they give zero.
#define KELP_PULSE_CALL(name, result, parameters, arguments)                                                 \
    extern "C" result name parameters                                                                        \
    {                                                                                                        \
        return functions().name##_function ? functions().name##_function arguments : static_cast<result>(0); \
    }
KELP_PULSE_FUNCTIONS(KELP_PULSE_CALL)
