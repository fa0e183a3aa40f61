// What the sanitizers should know of libraries that are not ours, and how they should report. Linked into
// every program of a build with them: their libraries look these names up in it.
#pragma GCC visibility push(default)
extern "C" {
const char *__lsan_default_suppressions();
const char *__tsan_default_suppressions();
const char *__tsan_default_options();
const char *__ubsan_default_options();

/// Caches that libraries of the distribution keep until the process ends.
const char *__lsan_default_suppressions()
{
    return "leak:libfontconfig\n"
           "leak:libasound\n"
           "leak:libdbus-1\n"
           "leak:libQt6\n"
           "leak:libglib\n";
}

/// Libraries of the distribution that ThreadSanitizer cannot see into; nothing of ours is named here.
const char *__tsan_default_suppressions()
{
    // A library stands under called_from_lib only where its locks do not guard data of ours: their locking is
    // not seen then. GLib's stand between the event loops of all threads: without them everything that one
    // thread posts to another would be reported.
    return "called_from_lib:libasound.so\n"
           // What these two guard by atomics of their own, between the session bus's thread and others.
           "race:libglib-2.0.so\n"
           "race:libdbus-1.so\n"
           // PulseAudio hands buffers from one connection's thread to another's by lists without locks.
           "race:pa_iochannel_\n"
           "race:pa_packet_\n"
           "race:pa_pstream_\n"
           "race:pa_memblock\n"
           "race:pa_tagstruct\n"
           "race:pa_mutex_\n"
           "race:pa_cond_\n"
           // The C library guards its time zone by a lock that is not seen.
           "race:tzset_internal\n";
}

const char *__tsan_default_options()
{
    return "halt_on_error=1:second_deadlock_stack=1";
}

const char *__ubsan_default_options()
{
    return "print_stacktrace=1";
}
}
#pragma GCC visibility pop
