#include "support_devices/private_pulse.h"

#include <filesystem>

namespace test_devices {
namespace fs = std::filesystem;
namespace {

/// True once the server tells its sinks. Its socket is there before it listens on it, and on a busy machine
/// long before it answers, so a program that connects when it sees the socket may be refused.
bool answers(const PrivatePlace &place)
{
    const std::string told = place.file("pactl.out");
    ChildProcess question({"pactl", "list", "short", "sinks"}, told, place.file("pactl.log"));
    kelp_test::waitUntil([&] { return !question.running(); });
    return !readFile(told).empty();
}

} // namespace

PrivatePulse::PrivatePulse(PrivatePlace &place, const std::string &sinkArguments)
{
    for (const char *program : {"pulseaudio", "pactl"})
        if (findProgram(program).empty()) {
            missing_ = "The program " + std::string(program) + " is not installed.";
            return;
        }
    server_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                                 "--disable-shm=yes", "-n", "-L", "module-native-protocol-unix", "-L",
                                 "module-null-sink " + sinkArguments},
        place.file("pulse.out"), place.file("pulse.log"));
    const std::string socket = place.file("run/pulse/native");
    kelp_test::waitUntil([&] { return fs::is_socket(socket) || !server_->running(); });
    if (!kelp_test::waitUntil([&] { return !server_->running() || answers(place); }) || !server_->running())
        missing_ = "The private sound server did not start: " + readFile(place.file("pulse.log"));
}

SinkRecorder::SinkRecorder(PrivatePlace &place, const std::string &sink, int rateHz,
                           const std::string &format, int channels)
    : file_(place.file("monitor.raw"))
{
    if (findProgram("parecord").empty()) {
        missing_ = "The program parecord is not installed.";
        return;
    }
    recorder_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"parecord", "-d", sink + ".monitor", "--raw",
                                 "--rate=" + std::to_string(rateHz), "--format=" + format,
                                 "--channels=" + std::to_string(channels)},
        file_, place.file("parecord.log"));
    if (!kelp_test::waitUntil([this] { return !bytes().empty(); }))
        missing_ =
            "The recorder of the private sound server gave nothing: " + readFile(place.file("parecord.log"));
}

std::string SinkRecorder::bytes() const
{
    return readFile(file_);
}

} // namespace test_devices
