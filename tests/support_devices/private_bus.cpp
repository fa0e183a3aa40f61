#include "support_devices/private_bus.h"

#include <cstring>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace test_devices {

namespace {

/// The socket's file stands there a moment before the daemon listens on it: only a connection proves it.
bool answers(const std::string &path)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (path.size() >= sizeof address.sun_path)
        return false;
    std::memcpy(address.sun_path, path.c_str(), path.size() + 1);
    const int fd = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    if (fd < 0)
        return false;
    const bool connected = connect(fd, reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
    close(fd);
    return connected;
}

} // namespace

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
    const bool up = kelp_test::waitUntil([&] { return answers(socket) || !daemon_->running(); });
    if (!up || !answers(socket)) {
        missing_ = "The private session bus did not start: " + readFile(place.file("bus.log"));
        return;
    }
    place.setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=" + socket);
}

} // namespace test_devices
