#include "platform/stack_sample.h"

#include "platform/module_list.h"
#include "platform/symbol_names.h"
#include "tests/support/patience.h"
#include "tests/support/sanitizers.h"
#include "tests/support/standing_thread.h"

#include <QStringList>
#include <cstdlib>
#include <gtest/gtest.h>
#include <new>

// Counts what a marked thread allocates. The sanitizers bring allocators of their own along.
#if !KELP_TEST_THREAD_SANITIZER && !KELP_TEST_ADDRESS_SANITIZER && defined(__GLIBC__)
#define KELP_TEST_COUNTS_ALLOCATIONS 1
namespace {
thread_local bool counted = false;
std::atomic<int> allocations{0};
} // namespace

extern "C" void *__libc_malloc(std::size_t size);
extern "C" void *__libc_calloc(std::size_t count, std::size_t size);
extern "C" __attribute__((visibility("default"))) void *malloc(std::size_t size)
{
    if (counted)
        ++allocations;
    return __libc_malloc(size);
}
extern "C" __attribute__((visibility("default"))) void *calloc(std::size_t count, std::size_t size)
{
    if (counted)
        ++allocations;
    return __libc_calloc(count, size);
}
#endif

namespace {

using namespace std::chrono_literals;

/// The thread may be on its way into the function still: samples until it has arrived.
QStringList namesOf(SystemThreadId thread)
{
    QStringList names;
    const std::vector<LoadedModule> modules = loadedModules();
    for (int attempt = 0; attempt < 200; ++attempt) {
        StackSample sample;
        if (sampleStack(thread, sample, kelp_test::patience) != StackSampleResult::Taken)
            return {};
        names.clear();
        for (int frame = 0; frame < sample.count; ++frame) {
            const std::uintptr_t address = sample.addresses[static_cast<std::size_t>(frame)];
            if (const LoadedModule *module = moduleAt(modules, address))
                names += functionNameAt(*module, frame == 0 ? address : address - 1);
        }
        if (!names.filter(QStringLiteral("kelpTestStandsAsleep")).isEmpty())
            break;
    }
    return names;
}

[[gnu::noinline]] int kelpTestDeeper(int depth, sem_t &gate)
{
    if (depth == 0) {
        kelpTestStandsAsleep(gate);
        return 0;
    }
    const int below = kelpTestDeeper(depth - 1, gate);
    asm volatile("" ::: "memory");
    return below + 1;
}

struct sigaction actionOf(int signal)
{
    struct sigaction action;
    sigaction(signal, nullptr, &action);
    return action;
}

#define SKIP_WITHOUT_SIGNALS()                                                                               \
    if (KELP_TEST_THREAD_SANITIZER)                                                                          \
    GTEST_SKIP() << "ThreadSanitizer holds signals back until the thread enters a call that it knows."

TEST(StackSample, NamesTheFunctionThatAThreadStandsIn)
{
    SKIP_WITHOUT_SIGNALS();
    StandingThread thread;
    const QStringList names = namesOf(thread.id());
    EXPECT_FALSE(names.filter(QStringLiteral("kelpTestStandsAsleep")).isEmpty())
        << names.join(u'\n').toStdString();
}

TEST(StackSample, TheThreadGoesOnAfterwards)
{
    SKIP_WITHOUT_SIGNALS();
    StandingThread thread;
    for (int round = 0; round < 100; ++round) {
        StackSample sample;
        ASSERT_EQ(sampleStack(thread.id(), sample, kelp_test::patience), StackSampleResult::Taken);
        EXPECT_GT(sample.count, 2);
    }
    thread.letGo();
}

TEST(StackSample, ADeepStackIsCutAtTheLimit)
{
    SKIP_WITHOUT_SIGNALS();
    sem_t gate;
    sem_init(&gate, 0, 0);
    std::atomic<SystemThreadId> id{0};
    std::thread thread([&] {
        id.store(currentSystemThreadId());
        id.notify_all();
        kelpTestDeeper(500, gate);
    });
    id.wait(0);
    StackSample sample;
    for (int attempt = 0; attempt < 1000 && sample.count != StackSample::mostFrames; ++attempt)
        ASSERT_EQ(sampleStack(id.load(), sample, kelp_test::patience), StackSampleResult::Taken);
    EXPECT_EQ(sample.count, StackSample::mostFrames);
    sem_post(&gate);
    thread.join();
    sem_destroy(&gate);
}

TEST(StackSample, AllocatesNothingInTheStoppedThread)
{
#ifdef KELP_TEST_COUNTS_ALLOCATIONS
    sem_t gate;
    sem_init(&gate, 0, 0);
    std::atomic<SystemThreadId> id{0};
    std::thread thread([&] {
        counted = true;
        id.store(currentSystemThreadId());
        id.notify_all();
        kelpTestStandsAsleep(gate);
        // The proof that the counter counts.
        void *volatile block = std::malloc(16);
        counted = false;
        std::free(block);
    });
    id.wait(0);
    for (int round = 0; round < 50; ++round) {
        StackSample sample;
        ASSERT_EQ(sampleStack(id.load(), sample, kelp_test::patience), StackSampleResult::Taken);
    }
    EXPECT_EQ(allocations.load(), 0);
    sem_post(&gate);
    thread.join();
    EXPECT_EQ(allocations.load(), 1);
    sem_destroy(&gate);
#else
    GTEST_SKIP() << "The sanitizer brings an allocator of its own along, which cannot be counted.";
#endif
}

TEST(StackSample, PutsTheFormerHandlerBack)
{
    SKIP_WITHOUT_SIGNALS();
    StandingThread thread;
    StackSample sample;
    ASSERT_EQ(sampleStack(thread.id(), sample, kelp_test::patience), StackSampleResult::Taken);
    for (int signal = SIGRTMIN; signal <= SIGRTMAX; ++signal)
        EXPECT_EQ(actionOf(signal).sa_handler, SIG_DFL) << signal;
}

TEST(StackSample, LeavesSignalsThatSomebodyUsesAlone)
{
    SKIP_WITHOUT_SIGNALS();
    struct sigaction own = {};
    own.sa_handler = SIG_IGN;
    sigaction(SIGRTMAX, &own, nullptr);
    StandingThread thread;
    StackSample sample;
    EXPECT_EQ(sampleStack(thread.id(), sample, kelp_test::patience), StackSampleResult::Taken);
    EXPECT_EQ(actionOf(SIGRTMAX).sa_handler, SIG_IGN);
    own.sa_handler = SIG_DFL;
    sigaction(SIGRTMAX, &own, nullptr);
}

TEST(StackSample, SaysWhenNoSignalIsFree)
{
    struct sigaction own = {};
    own.sa_handler = SIG_IGN;
    for (int signal = SIGRTMIN; signal <= SIGRTMAX; ++signal)
        sigaction(signal, &own, nullptr);
    StandingThread thread;
    StackSample sample;
    EXPECT_EQ(sampleStack(thread.id(), sample, kelp_test::patience), StackSampleResult::NoSignal);
    own.sa_handler = SIG_DFL;
    for (int signal = SIGRTMIN; signal <= SIGRTMAX; ++signal)
        sigaction(signal, &own, nullptr);
}

TEST(StackSample, AThreadThatHasEndedIsNamedSo)
{
    StandingThread thread;
    thread.letGo();
    // A joined thread's number may live on in the kernel for a moment.
    StackSample sample;
    StackSampleResult result = StackSampleResult::Taken;
    for (int attempt = 0; attempt < 1000 && result != StackSampleResult::NoSuchThread; ++attempt)
        result = sampleStack(thread.id(), sample, 1ms);
    EXPECT_EQ(result, StackSampleResult::NoSuchThread);
    EXPECT_EQ(sample.count, 0);
}

TEST(StackSample, AThreadThatBlocksSignalsTimesOutAndTheLateSignalDoesNoHarm)
{
    SKIP_WITHOUT_SIGNALS();
    sem_t unblock;
    sem_init(&unblock, 0, 0);
    std::atomic<SystemThreadId> id{0};
    std::atomic<bool> unblocked{false};
    std::thread thread([&] {
        sigset_t all;
        sigset_t former;
        sigfillset(&all);
        pthread_sigmask(SIG_BLOCK, &all, &former);
        id.store(currentSystemThreadId());
        id.notify_all();
        kelpTestStandsAsleep(unblock);
        pthread_sigmask(SIG_SETMASK, &former, nullptr); // the late signal arrives here
        unblocked.store(true);
        unblocked.notify_all();
        kelpTestStandsAsleep(unblock);
    });
    id.wait(0);
    StackSample sample;
    EXPECT_EQ(sampleStack(id.load(), sample, 5ms), StackSampleResult::TimedOut);
    EXPECT_EQ(sample.count, 0);
    sem_post(&unblock);
    unblocked.wait(false);
    EXPECT_EQ(sampleStack(id.load(), sample, kelp_test::patience), StackSampleResult::Taken);
    EXPECT_GT(sample.count, 0);
    sem_post(&unblock);
    thread.join();
    sem_destroy(&unblock);
}

} // namespace
