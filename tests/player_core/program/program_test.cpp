// The engine as a program: what it prints and how it ends.

#include "tests/support/pcm_signal.h"
#include "tests/support/temp_dir.h"
#include "tests/support/wav_maker.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace kelp_core::test {

namespace {

/// A child process with its standard input and its output (both streams) on pipes.
class Child
{
public:
    explicit Child(std::vector<std::string> args)
    {
        int in[2];
        int out[2];
        if (::pipe2(in, O_CLOEXEC) != 0 || ::pipe2(out, O_CLOEXEC) != 0)
            return;
        posix_spawn_file_actions_t actions;
        posix_spawn_file_actions_init(&actions);
        posix_spawn_file_actions_adddup2(&actions, in[0], 0);
        posix_spawn_file_actions_adddup2(&actions, out[1], 1);
        posix_spawn_file_actions_adddup2(&actions, out[1], 2);
        std::vector<char *> argv;
        for (std::string &arg : args)
            argv.push_back(arg.data());
        argv.push_back(nullptr);
        posix_spawn(&pid_, argv[0], &actions, nullptr, argv.data(), environ);
        posix_spawn_file_actions_destroy(&actions);
        ::close(in[0]);
        ::close(out[1]);
        in_ = in[1];
        out_ = out[0];
    }

    ~Child()
    {
        closeInput();
        ::close(out_);
        if (pid_ > 0) {
            ::kill(pid_, SIGKILL);
            ::waitpid(pid_, nullptr, 0);
        }
    }

    pid_t pid() const { return pid_; }

    void send(const std::string &text) const
    {
        EXPECT_EQ(::write(in_, text.data(), text.size()), static_cast<ssize_t>(text.size()));
    }

    void closeInput()
    {
        if (in_ >= 0)
            ::close(in_);
        in_ = -1;
    }

    /// Reads until this is printed; false at the end of the output.
    bool waitText(const std::string &wanted)
    {
        char buffer[4096];
        while (text_.find(wanted) == std::string::npos) {
            const ssize_t n = ::read(out_, buffer, sizeof buffer);
            if (n <= 0)
                return false;
            text_.append(buffer, static_cast<size_t>(n));
        }
        return true;
    }

    /// Everything printed until the end, and the exit code.
    std::pair<std::string, int> finish()
    {
        std::string text = std::move(text_);
        char buffer[4096];
        for (ssize_t n = 0; (n = ::read(out_, buffer, sizeof buffer)) > 0;)
            text.append(buffer, static_cast<size_t>(n));
        int status = 0;
        ::waitpid(pid_, &status, 0);
        pid_ = -1;
        return {text, WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status)};
    }

private:
    pid_t pid_ = -1;
    int in_ = -1;
    int out_ = -1;
    std::string text_; ///< read already
};

std::string smallFile(const kelp_test::TempDir &dir)
{
    const std::vector<uint8_t> bytes = wavBytes(kelp_test::makeSignal({}));
    std::ofstream file(dir.file("a.wav"), std::ios::binary);
    file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    return dir.file("a.wav");
}

} // namespace

TEST(ProgramTest, HelpNamesEveryOptionOfAHost)
{
    const auto [text, code] = Child({KELP_ENGINE_PROGRAM, "--help"}).finish();
    EXPECT_EQ(code, 0);
    for (const char *flag : {"-i ",
                             "-cue ",
                             "-iso ",
                             "-track ",
                             "-stream",
                             "-start ",
                             "-dev ",
                             "-output-path ",
                             "-dop ",
                             "-resample",
                             "-src-quality ",
                             "-pcm ",
                             "-pcm-bits ",
                             "-pcm-filter ",
                             "-vol ",
                             "-crossfade ",
                             "-gapless ",
                             "-spectrum ",
                             "-scope ",
                             "-parent-pid ",
                             "-inproc-host",
                             "-inproc-ctl ",
                             "-inproc-ctl-fn ",
                             "-dsp-plugins-on",
                             "-prefetch ",
                             "-mode",
                             "-devs",
                             "-xo",
                             "-rig",
                             "-peak-guard",
                             "-denoise",
                             "-keep-harmonics",
                             "-replaygain",
                             "-speed",
                             "-pitch-lock",
                             "-pcm2dsd",
                             "-pcm2dsd-target",
                             "-pcm2dsd-taps",
                             "-ext-decoder",
                             "-list",
                             "-list-devices",
                             "-dsd-caps",
                             "-cue-list",
                             "-iso-list",
                             "-cover",
                             "-analyze",
                             "-fingerprint",
                             "-scan",
                             "-vol-get",
                             "-check-ext",
                             "-rig-info",
                             "-reset-device"})
        EXPECT_NE(text.find(flag), std::string::npos) << flag;
}

TEST(ProgramTest, AWrongCommandLineIsTwoAndASentence)
{
    const auto [text, code] = Child({KELP_ENGINE_PROGRAM, "-dance"}).finish();
    EXPECT_EQ(code, 2);
    EXPECT_EQ(text, "Unknown option \"-dance\"; --help lists all of them.\n");
}

TEST(ProgramTest, AnswersProbesAboutDevicesAndSheets)
{
    EXPECT_EQ(Child({KELP_ENGINE_PROGRAM, "-list"}).finish().second, 0);
    EXPECT_EQ(Child({KELP_ENGINE_PROGRAM, "-list-devices"}).finish().second, 0);
    EXPECT_EQ(Child({KELP_ENGINE_PROGRAM, "-cue-list", "/nonexistent.cue"}).finish().second, 1);
    EXPECT_EQ(Child({KELP_ENGINE_PROGRAM, "-cue-list"}).finish().second, 2);
    EXPECT_EQ(Child({KELP_ENGINE_PROGRAM, "-analyze", "/a"}).finish().second, 1);
}

TEST(ProgramTest, AScriptsTrackPlaysToItsEndWhenTheInputEnds)
{
    const kelp_test::TempDir dir;
    Child child({KELP_ENGINE_PROGRAM, "-stream", "-dev", "null"});
    child.send("load " + smallFile(dir) + "\n");
    child.closeInput();
    const auto [text, code] = child.finish();
    EXPECT_EQ(code, 0);
    EXPECT_NE(text.find("DONE " + dir.file("a.wav")), std::string::npos);
}

TEST(ProgramTest, AHostsEndOfInputIsAStop)
{
    Child child({KELP_ENGINE_PROGRAM, "-stream", "-parent-pid", std::to_string(::getpid())});
    child.closeInput();
    EXPECT_EQ(child.finish().second, 3);
}

TEST(ProgramTest, EndsWhenTheHostProcessIsGone)
{
    Child host({"/bin/cat"});
    Child child({KELP_ENGINE_PROGRAM, "-stream", "-parent-pid", std::to_string(host.pid())});
    host.closeInput();
    // The host is not collected before the engine has ended: a dead process that nobody waits for is gone
    // too.
    EXPECT_EQ(child.finish().second, 3);
    EXPECT_EQ(host.finish().second, 0);
}

TEST(ProgramTest, AskedToEndByTheSystemItStopsAsAtStop)
{
    const kelp_test::TempDir dir;
    kelp_test::SignalRecipe recipe;
    recipe.frames = 44'100 * 60;
    const std::vector<uint8_t> bytes = wavBytes(kelp_test::makeSignal(recipe));
    std::ofstream(dir.file("long.wav"), std::ios::binary)
        .write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    const std::vector<std::string> console{KELP_ENGINE_PROGRAM, "-i", dir.file("long.wav"), "-dev", "null"};
    std::vector<std::string> hosted = console;
    hosted.insert(hosted.end(), {"-stream", "-parent-pid", std::to_string(::getpid())});
    struct Case
    {
        const std::vector<std::string> &args;
        std::vector<int> signals; ///< all but the last are not heard
        bool inputEnds;
    };
    ::setenv("KELP_ENGINE_PACE", "realtime", 1);
    for (const Case &each : {Case{console, {SIGTERM}, false}, Case{console, {SIGINT}, false},
                             Case{console, {SIGHUP}, true}, Case{hosted, {SIGINT, SIGHUP, SIGTERM}, false}}) {
        Child child(each.args);
        if (each.inputEnds)
            child.closeInput();
        EXPECT_TRUE(child.waitText("PG "));
        for (const int number : each.signals)
            ::kill(child.pid(), number);
        const auto [text, code] = child.finish();
        EXPECT_EQ(code, 3) << each.signals.back() << text;
        EXPECT_EQ(text.find("DONE"), std::string::npos) << "the track was not played to its end";
    }
    ::unsetenv("KELP_ENGINE_PACE");
}

} // namespace kelp_core::test
