#include "support_devices/private_pulse.h"

#include <filesystem>

namespace test_devices {
namespace fs = std::filesystem;

PrivatePulse::PrivatePulse(PrivatePlace &place, const std::string &sinkArguments)
{
    if (findProgram("pulseaudio").empty()) {
        missing_ = "The program pulseaudio is not installed.";
        return;
    }
    server_ = std::make_unique<ChildProcess>(
        std::vector<std::string>{"pulseaudio", "--daemonize=no", "--exit-idle-time=-1", "--use-pid-file=no",
                                 "--disable-shm=yes", "-n", "-L", "module-native-protocol-unix", "-L",
                                 "module-null-sink " + sinkArguments},
        place.file("pulse.out"), place.file("pulse.log"));
    const std::string socket = place.file("run/pulse/native");
    const bool up = waitUntil([&] { return fs::is_socket(socket) || !server_->running(); });
    if (!up || !fs::is_socket(socket))
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
    if (!waitUntil([this] { return !bytes().empty(); }))
        missing_ =
            "The recorder of the private sound server gave nothing: " + readFile(place.file("parecord.log"));
}

std::string SinkRecorder::bytes() const
{
    return readFile(file_);
}

} // namespace test_devices
