// clone() as ThreadSanitizer has to see it; linked into every test of a build with it.
//
// QProcess starts a child by clone(CLONE_VM | CLONE_VFORK). The sanitizer's own clone() takes that for a fork
// and notes in the child that from here on no lock counts and no thread is left. The child shares this
// memory, so the note stays with the parent: the thread that started the process then loses every lock it
// takes, races are reported that there are not, and real ones of that thread are missed.
#include <cstdarg>
#include <dlfcn.h>
#include <sched.h>
#include <sys/types.h>

extern "C" {

/// The sanitizer records neither accesses nor locks of the calling thread in between.
void __tsan_ignore_thread_begin();
void __tsan_ignore_thread_end();

/// The C library's clone(). Of a child in this memory nothing is recorded: it closes and duplicates
/// descriptors of its own until it is another program, and the caller waits until then.
__attribute__((visibility("default"))) int clone(int (*function)(void *), void *stack, int flags,
                                                 void *argument, ...) noexcept
{
    using Clone = int (*)(int (*)(void *), void *, int, void *, pid_t *, void *, pid_t *);
    static const auto real = reinterpret_cast<Clone>(dlsym(dlopen("libc.so.6", RTLD_NOW), "clone"));
    va_list rest;
    va_start(rest, argument);
    auto *const parentTid = va_arg(rest, pid_t *);
    auto *const threadStorage = va_arg(rest, void *);
    auto *const childTid = va_arg(rest, pid_t *);
    va_end(rest);
    __tsan_ignore_thread_begin();
    const int pid = real(function, stack, flags, argument, parentTid, threadStorage, childTid);
    __tsan_ignore_thread_end();
    return pid;
}

} // extern "C"
