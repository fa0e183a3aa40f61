#include "platform/stack_sample.h"

#include <atomic>
#include <cerrno>
#include <csignal>
#include <ctime>
#include <mutex>
#include <semaphore.h>
#include <sys/syscall.h>
#include <ucontext.h>
#include <unistd.h>
#include <unwind.h>

namespace {

using namespace std::chrono;

/// After the thread has begun to walk it needs microseconds; more than this means that it was stopped in
/// there.
constexpr milliseconds walkWait{1000};

enum Phase : int
{
    idle,
    armed,   ///< the signal is under way
    walking, ///< the handler owns the buffer
    taken,   ///< the buffer is filled
};

/// What the sampler and the handler share: one request at a time, in static storage, because a handler may
/// run long after the caller has given up. The phase says who owns the rest.
struct Request
{
    std::atomic<int> phase{idle};
    std::atomic<int> number{0}; ///< tells a late signal from the one that is waited for
    StackSample sample;         ///< guarded by phase
    sem_t done;                 ///< posted by the handler: one of the few things a handler may do
};
static_assert(std::atomic<int>::is_always_lock_free, "a handler may only use atomics without locks");

Request request;

/// The signal in use, 0 before the first sample. Guarded by samplerMutex, as are the two below.
int signalNumber = 0;
bool handlerStands = false;
struct sigaction formerAction;

std::mutex &samplerMutex()
{
    static std::mutex mutex;
    return mutex;
}

struct Walk
{
    StackSample *sample;
    bool pastHandler; ///< the handler's own frames are behind us
};

_Unwind_Reason_Code takeFrame(_Unwind_Context *context, void *argument)
{
    auto &walk = *static_cast<Walk *>(argument);
    int atInstruction = 0;
    const std::uintptr_t address = _Unwind_GetIPInfo(context, &atInstruction);
    // Only the frame that a signal interrupted stands at an instruction; all others stand behind a call.
    walk.pastHandler = walk.pastHandler || atInstruction != 0;
    if (!walk.pastHandler)
        return _URC_NO_REASON;
    StackSample &sample = *walk.sample;
    if (address == 0 || sample.count == StackSample::mostFrames)
        return _URC_END_OF_STACK;
    sample.addresses[static_cast<std::size_t>(sample.count++)] = address;
    return _URC_NO_REASON;
}

std::uintptr_t interruptedAddress([[maybe_unused]] const void *context)
{
#if defined(__x86_64__)
    return static_cast<std::uintptr_t>(static_cast<const ucontext_t *>(context)->uc_mcontext.gregs[REG_RIP]);
#elif defined(__aarch64__)
    return static_cast<const ucontext_t *>(context)->uc_mcontext.pc;
#else
    return 0;
#endif
}

/// Runs in the stopped thread: no allocation, no lock, nothing that is not async-signal-safe.
void onSampleSignal(int, siginfo_t *info, void *context)
{
    const int savedErrno = errno;
    int expected = armed;
    if (info->si_code == SI_QUEUE && info->si_value.sival_int == request.number.load() &&
        request.phase.compare_exchange_strong(expected, walking)) {
        request.sample.count = 0;
        Walk walk{&request.sample, false};
        _Unwind_Backtrace(takeFrame, &walk);
        if (request.sample.count == 0) {
            // No unwind table where the thread stood; the place itself is known all the same.
            request.sample.addresses[0] = interruptedAddress(context);
            request.sample.count = request.sample.addresses[0] != 0 ? 1 : 0;
        }
        request.phase.store(taken);
        sem_post(&request.done);
    }
    errno = savedErrno;
}

/// Highest first: libraries that use such signals begin at the low end.
int freeSignal()
{
    for (int number = SIGRTMAX; number >= SIGRTMIN; --number) {
        struct sigaction action;
        if (sigaction(number, nullptr, &action) == 0 && (action.sa_flags & SA_SIGINFO) == 0 &&
            action.sa_handler == SIG_DFL)
            return number;
    }
    return 0;
}

bool installHandler()
{
    if (handlerStands)
        return true;
    signalNumber = freeSignal();
    if (signalNumber == 0)
        return false;
    struct sigaction action = {};
    action.sa_sigaction = onSampleSignal;
    // Calls that the signal interrupts go on afterwards, and a thread with a stack for signals uses it.
    action.sa_flags = SA_SIGINFO | SA_RESTART | SA_ONSTACK;
    sigfillset(&action.sa_mask);
    handlerStands = sigaction(signalNumber, &action, &formerAction) == 0;
    return handlerStands;
}

void restoreHandler()
{
    sigaction(signalNumber, &formerAction, nullptr);
    handlerStands = false;
}

/// The first walk of a program sets up tables; that happens here, not in the stopped thread.
void prepareOnce()
{
    static const bool prepared = [] {
        sem_init(&request.done, 0, 0);
        StackSample unused;
        Walk walk{&unused, true};
        _Unwind_Backtrace(takeFrame, &walk);
        return true;
    }();
    static_cast<void>(prepared);
}

bool waitForDone(milliseconds wait)
{
    timespec until;
    clock_gettime(CLOCK_MONOTONIC, &until);
    const auto at = seconds(until.tv_sec) + nanoseconds(until.tv_nsec) + wait;
    until.tv_sec = duration_cast<seconds>(at).count();
    until.tv_nsec = static_cast<long>((at - duration_cast<seconds>(at)).count());
    int result = 0;
    while ((result = sem_clockwait(&request.done, CLOCK_MONOTONIC, &until)) != 0 && errno == EINTR) {
    }
    return result == 0;
}

bool sendSignal(SystemThreadId thread, int number)
{
    siginfo_t info = {};
    info.si_signo = signalNumber;
    info.si_code = SI_QUEUE;
    info.si_pid = getpid();
    info.si_uid = getuid();
    info.si_value.sival_int = number;
    return syscall(SYS_rt_tgsigqueueinfo, getpid(), thread, signalNumber, &info) == 0;
}

} // namespace

SystemThreadId currentSystemThreadId()
{
    return static_cast<SystemThreadId>(syscall(SYS_gettid));
}

StackSampleResult sampleStack(SystemThreadId thread, StackSample &sample, milliseconds wait)
{
    sample.count = 0;
    const std::lock_guard guard(samplerMutex());
    prepareOnce();
    if (request.phase.load() == walking)
        return StackSampleResult::Busy;
    if (!installHandler())
        return StackSampleResult::NoSignal;
    while (sem_trywait(&request.done) == 0) {
        // An answer that came after its caller had given up.
    }
    const int number = request.number.load() + 1;
    request.number.store(number);
    request.phase.store(armed);
    if (!sendSignal(thread, number)) {
        request.phase.store(idle);
        restoreHandler();
        return StackSampleResult::NoSuchThread;
    }
    if (!waitForDone(wait)) {
        int expected = armed;
        if (request.phase.compare_exchange_strong(expected, idle))
            return StackSampleResult::TimedOut;
        if (!waitForDone(walkWait))
            return StackSampleResult::Busy;
    }
    sample = request.sample;
    request.phase.store(idle);
    restoreHandler();
    return StackSampleResult::Taken;
}
