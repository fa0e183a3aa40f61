#include "support_devices/private_bus.h"

#include <filesystem>

namespace test_devices {
namespace fs = std::filesystem;

PrivateBus::PrivateBus(PrivatePlace &place)
{
    if (findProgram("dbus-daemon").empty()) {
        missing_ = "The program dbus-daemon is not installed.";
        return;
    }
    const std::string socket = place.file("run/test-bus");
    daemon_ = std::make_unique<ChildProcess>(std::vector<std::string>{"dbus-daemon", "--session", "--nofork",
                                                                      "--nopidfile",
                                                                      "--address=unix:path=" + socket},
                                             place.file("bus.out"), place.file("bus.log"));
    const bool up = waitUntil([&] { return fs::is_socket(socket) || !daemon_->running(); });
    if (!up || !fs::is_socket(socket)) {
        missing_ = "The private session bus did not start: " + readFile(place.file("bus.log"));
        return;
    }
    place.setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + socket);
}

} // namespace test_devices
