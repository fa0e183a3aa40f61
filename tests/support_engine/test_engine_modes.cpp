#include "support_engine/test_engine_modes.h"

#include <algorithm>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <future>
#include <memory>
#include <sstream>
#include <stdexcept>
#include <thread>
#include <unistd.h>

namespace test_engine {
namespace {

constexpr int stopCode = 3;

void sleepMs(int milliseconds)
{
    std::this_thread::sleep_for(std::chrono::milliseconds(milliseconds));
}

int echo(Control &control, const std::string &)
{
    std::printf("READY\n");
    std::fflush(stdout);
    while (const auto line = control.next()) {
        std::printf("[echo] %s\n", line->c_str());
        std::fflush(stdout);
        if (*line == "stop")
            return stopCode;
    }
    return 0;
}

int exitWith(Control &, const std::string &code)
{
    return std::atoi(code.c_str());
}

// Neither reads nor ends before the file exists.
int hang(Control &, const std::string &releaseFile)
{
    std::printf("HANGING\n");
    std::fflush(stdout);
    while (access(releaseFile.c_str(), F_OK) != 0)
        sleepMs(5);
    return stopCode;
}

int crash(Control &, const std::string &)
{
    std::printf("about to crash\n");
    std::fflush(stdout);
    std::abort();
}

int throwSomething(Control &, const std::string &kind)
{
    if (kind == "std")
        throw std::runtime_error("a thrown sentence");
    throw 42;
}

// Through the C streams, as an engine prints.
int flood(Control &, const std::string &countText)
{
    const int count = std::atoi(countText.c_str());
    for (int i = 0; i < count; ++i)
        std::printf("line %06d\n", i);
    std::fflush(stdout);
    return 0;
}

int bothStreams(Control &, const std::string &)
{
    std::printf("to stdout\n");
    std::fflush(stdout);
    std::fprintf(stderr, "to stderr\n");
    std::fflush(stderr);
    return 0;
}

int garbage(Control &, const std::string &)
{
    const auto put = [](const std::string &bytes) { std::fwrite(bytes.data(), 1, bytes.size(), stdout); };
    put(std::string("nul \0 inside\n", 13));
    put("invalid \xff\xfe\xc3 end\n");
    put("carriage\rreturn\r\n");
    put("\n");
    put(std::string(70000, 'x'));
    put("\nafter\n");
    put("a tail without an end");
    std::fflush(stdout);
    return 0;
}

int late(Control &control, const std::string &milliseconds)
{
    sleepMs(std::atoi(milliseconds.c_str()));
    return echo(control, {});
}

// Fetches with a buffer that holds seven characters.
int tiny(Control &control, const std::string &)
{
    control.setBufferSize(8);
    return echo(control, {});
}

// Returns once its thread has fetched a first line, and leaves that thread reading; at the channel's end it
// writes what it got into the file.
int lingerer(Control &control, const std::string &reportFile)
{
    const auto firstRead = std::make_shared<std::promise<void>>();
    std::thread([copy = control, reportFile, firstRead]() mutable {
        std::string got;
        while (const auto line = copy.next()) {
            if (got.empty())
                firstRead->set_value();
            got += *line + ";";
        }
        if (std::FILE *file = std::fopen((reportFile + ".tmp").c_str(), "we")) {
            std::fprintf(file, "%send\n", got.c_str());
            std::fclose(file);
            std::rename((reportFile + ".tmp").c_str(), reportFile.c_str());
        }
    }).detach();
    firstRead->get_future().wait();
    return 0;
}

// Unflushed text only: the host's flusher must bring it out while the engine runs.
int unflushed(Control &control, const std::string &)
{
    std::printf("UNFLUSHED\n");
    while (const auto line = control.next()) {
        if (*line == "stop")
            return stopCode;
    }
    return 0;
}

// Does not read its control lines until the file exists, then counts them.
int deaf(Control &control, const std::string &wakeFile)
{
    std::printf("DEAF\n");
    std::fflush(stdout);
    while (access(wakeFile.c_str(), F_OK) != 0)
        sleepMs(5);
    int count = 0;
    for (auto line = control.next(); line; line = control.next()) {
        ++count;
        if (*line == "stop")
            break;
    }
    std::printf("COUNT %d\n", count);
    std::fflush(stdout);
    return stopCode;
}

int environment(Control &, const std::string &name)
{
    const char *value = std::getenv(name.c_str());
    std::printf("%s=%s\n", name.c_str(), value != nullptr ? value : "<unset>");
    std::fflush(stdout);
    return 0;
}

void say(const std::string &line)
{
    std::printf("%s\n", line.c_str());
    std::fflush(stdout);
}

// Appends what it was told, and when, to the file that KELP_TEST_RECORD names.
void record(const std::string &line)
{
    const char *path = std::getenv("KELP_TEST_RECORD");
    std::FILE *file = path != nullptr ? std::fopen(path, "ae") : nullptr;
    if (file == nullptr)
        return;
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    std::fprintf(file, "%lld\t%s\n",
                 static_cast<long long>(std::chrono::duration_cast<std::chrono::milliseconds>(now).count()),
                 line.c_str());
    std::fclose(file);
}

// Hears nothing and dies of nothing but a kill before the file exists.
void hangUntil(const std::string &releaseFile, bool ownProcess)
{
    if (ownProcess)
        std::signal(SIGTERM, SIG_IGN);
    while (access(releaseFile.c_str(), F_OK) != 0)
        sleepMs(5);
}

// What a track does stands in its name, one word behind each dot: "a.at94_9.exit1.wav". Gives the exit code
// where the engine ends.
std::optional<int> playScript(const std::string &path, bool ownProcess)
{
    std::istringstream words(path.substr(path.rfind('/') + 1));
    std::string total = "100";
    for (std::string word; std::getline(words, word, '.');) {
        const auto behind = [&word](const char *start) -> std::optional<std::string> {
            return word.starts_with(start) ? std::optional(word.substr(std::strlen(start))) : std::nullopt;
        };
        if (auto seconds = behind("at")) {
            std::replace(seconds->begin(), seconds->end(), '_', '.');
            say("PG " + *seconds + " " + *seconds + " " + total);
        } else if (const auto length = behind("of")) {
            total = *length;
        } else if (const auto code = behind("exit")) {
            return std::atoi(code->c_str());
        } else if (word == "done") {
            say("DONE " + path);
        } else if (word == "crash") {
            std::abort();
        } else if (word == "hang") {
            say("HANGING");
            hangUntil(path + ".release", ownProcess);
        }
    }
    return std::nullopt;
}

int player(Control &control, const std::string &)
{
    record("start");
    while (const auto line = control.next()) {
        record(*line);
        if (*line == "stop")
            return stopCode;
        if (!line->starts_with("load "))
            continue;
        if (const auto code = playScript(line->substr(5), !control.fromQueue()))
            return *code;
    }
    return 0;
}

constexpr struct
{
    const char *name;
    Mode run;
} modes[] = {{"echo", echo},        {"exit", exitWith},           {"hang", hang},
             {"crash", crash},      {"throw", throwSomething},    {"flood", flood},
             {"both", bothStreams}, {"garbage", garbage},         {"late", late},
             {"tiny", tiny},        {"lingerer", lingerer},       {"unflushed", unflushed},
             {"deaf", deaf},        {"environment", environment}, {"player", player}};

} // namespace

Mode findMode(const std::string &name)
{
    for (const auto &mode : modes) {
        if (name == mode.name)
            return mode.run;
    }
    return nullptr;
}

} // namespace test_engine
