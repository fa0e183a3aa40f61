#include "engine/in_proc_runner.h"

#include "engine/in_proc_threads.h"
#include "engine/inproc_ctl_queue.h"
#include "engine/inproc_log.h"
#include "engine/pipe_write.h"
#include "engine/reader_state.h"
#include "engine/session_code.h"

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace kelp {
namespace {

constexpr std::chrono::milliseconds finishedPoll{20};
constexpr std::chrono::milliseconds readerPoll{5};
/// What a sink that is just being called is granted before its owner goes away.
constexpr int sinkWaitMs = 1000;

constexpr std::string_view pipeReady = "[host] session pipe ready (fd1/fd2 -> InProcRunner pipe)\n";
static_assert(pipeReady.size() == 57);

void closeFd(int &fd)
{
    if (fd >= 0)
        close(fd);
    fd = -1;
}

bool waitFor(const std::atomic<bool> &flag, int timeoutMs, std::chrono::milliseconds step)
{
    const auto until = std::chrono::steady_clock::now() + std::chrono::milliseconds(timeoutMs);
    while (!flag) {
        if (std::chrono::steady_clock::now() >= until)
            return false;
        std::this_thread::sleep_for(step);
    }
    return true;
}

void joinOrDetach(std::thread &thread, bool ended)
{
    if (!thread.joinable())
        return;
    if (ended)
        thread.join();
    else
        thread.detach();
}

} // namespace

InProcRunner::InProcRunner(Entry entry)
    : InProcRunner(entry, Options())
{
}

InProcRunner::InProcRunner(Entry entry, Options options)
    : m_entry(entry)
    , m_options(std::move(options))
    , m_redirect(m_options.calls)
{
}

InProcRunner::~InProcRunner()
{
    if (running()) {
        sendLine("stop");
        waitExit(m_options.destructorWaitMs);
    }
    cleanUp();
}

int InProcRunner::start(const std::vector<std::string> &args, LineSink sink)
{
    if (m_entry == nullptr || args.empty())
        return session_code::refused;
    if (running())
        return session_code::alreadyRunning;
    cleanUp();
    m_diagnosticLog = inprocLogPath();

    int out[2] = {-1, -1};
    int control[2] = {-1, -1};
    if (!ensureStandardDescriptors() || !makePipes(out, control) || !redirect(out, control))
        return session_code::couldNotStart;

    m_reader = std::make_shared<ReaderState>();
    m_reader->lineSink = std::move(sink);
    m_reader->diagnosticLog = m_diagnosticLog;
    m_reader->errorFd = fcntl(m_redirect.savedErrorFd(), F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    {
        const std::lock_guard lock(m_controlMutex);
        if (m_options.useQueue) {
            m_queue = InprocCtlQueue::create();
            m_queue->open();
        }
        m_lastError.clear();
        m_worker = std::make_shared<WorkerState>();
        m_worker->running = true;
    }
    // Through the pipe to the reader: the log thus shows that the redirection works. The pipe is empty, so
    // this cannot block.
    [[maybe_unused]] const ssize_t proof = write(STDOUT_FILENO, pipeReady.data(), pipeReady.size());

    if (startThreads(args))
        return session_code::ok;
    undoFailedStart();
    return session_code::couldNotStart;
}

bool InProcRunner::makePipes(int out[2], int control[2])
{
    if (m_options.calls.makePipe(out) < 0)
        return false;
    // The size is the system's default too; where its owner allows less, a smaller pipe does.
    fcntl(out[1], F_SETPIPE_SZ, pipeSizeBytes);
    if (m_options.useQueue || m_options.calls.makePipe(control) == 0)
        return true;
    closeFd(out[0]);
    closeFd(out[1]);
    return false;
}

bool InProcRunner::redirect(int out[2], int control[2])
{
    ensureStandardStreams();
    const bool redirected = m_redirect.begin(out[1], control[0]);
    const StdioRedirect::Results got = m_redirect.results();
    std::array<char, 256> line;
    std::snprintf(line.data(), line.size(),
                  "[inproc] dup2 out=%d err=%d in=%d | fileno: in=%d out=%d err=%d | osf: in=%lld out=%lld\n",
                  got.out, got.err, got.in, fileno(stdin), fileno(stdout), fileno(stderr),
                  static_cast<long long>(fileno(stdin)), static_cast<long long>(fileno(stdout)));
    appendInprocLog(m_diagnosticLog, line.data());
    // Descriptors 1, 2 and 0 hold the far ends now; with ours closed the reader sees the end at restore().
    closeFd(out[1]);
    closeFd(control[0]);
    if (!redirected) {
        closeFd(out[0]);
        closeFd(control[1]);
        return false;
    }
    if (control[1] >= 0)
        fcntl(control[1], F_SETFL, O_NONBLOCK); // sendLine() must not wait for an engine that does not read
    m_outReadFd = out[0];
    const std::lock_guard lock(m_controlMutex);
    m_ctlWriteFd = control[1];
    return true;
}

bool InProcRunner::startThreads(const std::vector<std::string> &args)
{
    // Before the threads, and only if it changes something: others may be reading the environment.
    const char *known = std::getenv("KELP_INPROC");
    if (known == nullptr || std::string_view(known) != "1")
        setenv("KELP_INPROC", "1", 1);
    const auto prepare = [this](const char *name) {
        if (m_options.beforeThread)
            m_options.beforeThread(name);
    };
    try {
        prepare("flusher");
        m_flusherThread = std::thread(runFlusher, m_worker);
        prepare("reader");
        m_readerThread = std::thread(runReader, m_reader, m_outReadFd);
        m_outReadFd = -1;
        prepare("engine");
        m_engineThread = std::thread(
            runEngineThread, EngineThreadStart{m_entry, args, m_queue, m_worker, m_reader, m_diagnosticLog});
    } catch (const std::system_error &) {
        return false;
    }
    return true;
}

void InProcRunner::undoFailedStart()
{
    m_worker->running = false;
    m_worker->finished = true;
    m_redirect.restore();
    if (m_readerThread.joinable())
        waitFor(m_reader->done, sinkWaitMs, readerPoll);
    cleanUp();
}

bool InProcRunner::running() const
{
    const std::lock_guard lock(m_controlMutex);
    return m_worker && m_worker->running;
}

std::string InProcRunner::lastError() const
{
    const std::lock_guard lock(m_controlMutex);
    return m_lastError;
}

bool InProcRunner::sendLine(std::string_view line)
{
    const std::lock_guard lock(m_controlMutex);
    if (!m_queue)
        return writeControlPipe(line);
    if (m_queue->push(line))
        return true;
    if (line == "stop") {
        m_queue->push(line, InprocCtlQueue::Accept::Always);
        m_lastError = "control queue closed -> stop forced through";
        return true;
    }
    m_lastError = "control queue closed (session already torn down)";
    return false;
}

bool InProcRunner::writeControlPipe(std::string_view line)
{
    if (m_ctlWriteFd < 0) {
        m_lastError = "no control channel (queue not enabled and pipe not created)";
        return false;
    }
    const std::string bytes = std::string(line) + '\n';
    const ssize_t written = writeWithoutSignal(m_ctlWriteFd, bytes);
    if (written == static_cast<ssize_t>(bytes.size()))
        return true;
    const int error = errno;
    std::array<char, 128> text;
    std::snprintf(text.data(), text.size(),
                  "control pipe write failed: %d/%d bytes, errno=%d, GetLastError=%lu",
                  static_cast<int>(written), static_cast<int>(bytes.size()), written < 0 ? error : 0, 0ul);
    m_lastError = text.data();
    return false;
}

int InProcRunner::waitExit(int timeoutMs)
{
    if (!m_worker)
        return session_code::refused;
    if (!waitFor(m_worker->finished, timeoutMs, finishedPoll))
        return session_code::timedOut;
    if (m_redirect.active()) {
        std::fflush(stdout);
        std::fflush(stderr);
        m_redirect.restore();
    }
    if (m_reader && !waitFor(m_reader->done, timeoutMs, readerPoll))
        m_reader->handOverPartial();
    reapThreads();
    closeControl();
    return m_worker->rc;
}

int InProcRunner::stop(int timeoutMs)
{
    sendLine("stop");
    return waitExit(timeoutMs);
}

void InProcRunner::reapThreads()
{
    joinOrDetach(m_engineThread, m_worker && m_worker->finished);
    joinOrDetach(m_flusherThread, false); // it may sleep for another 50 ms
    joinOrDetach(m_readerThread, m_reader && m_reader->done);
}

void InProcRunner::closeControl()
{
    const std::lock_guard lock(m_controlMutex);
    closeFd(m_ctlWriteFd);
    if (m_queue)
        m_queue->close();
}

void InProcRunner::cleanUp()
{
    reapThreads();
    closeControl();
    closeFd(m_outReadFd);
    m_redirect.restore();
    if (m_reader)
        m_reader->closeSink(sinkWaitMs);
    m_reader.reset();
    const std::lock_guard lock(m_controlMutex);
    m_queue.reset();
    m_worker.reset();
}

} // namespace kelp
