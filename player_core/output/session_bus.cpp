#include "player_core/output/session_bus.h"

#include <dbus/dbus.h>

#include <cstdlib>
#include <filesystem>

namespace kelp_core {
namespace {

/// A DBusError that frees itself.
struct BusError
{
    BusError() { dbus_error_init(&error); }
    ~BusError() { dbus_error_free(&error); }
    BusError(const BusError &) = delete;
    BusError &operator=(const BusError &) = delete;
    std::string text() const { return dbus_error_is_set(&error) ? error.message : "no reason given"; }
    DBusError error;
};

/// The bus's address, found without the library's own search: that one may start a bus.
std::string busAddress()
{
    if (const char *address = std::getenv("DBUS_SESSION_BUS_ADDRESS"); address && *address)
        return address;
    if (const char *folder = std::getenv("XDG_RUNTIME_DIR"); folder && *folder) {
        const std::string socket = std::string(folder) + "/bus";
        std::error_code ignored;
        if (std::filesystem::is_socket(socket, ignored))
            return "unix:path=" + socket;
    }
    return {};
}

} // namespace

void BusMessageDeleter::operator()(DBusMessage *message) const
{
    dbus_message_unref(message);
}

std::unique_ptr<SessionBus> SessionBus::connect(std::string &why)
{
    dbus_threads_init_default();
    const std::string address = busAddress();
    if (address.empty() || address.starts_with("autolaunch:")) {
        why = "There is no session bus.";
        return nullptr;
    }
    BusError error;
    DBusConnection *connection = dbus_connection_open_private(address.c_str(), &error.error);
    if (!connection) {
        why = "The session bus cannot be reached: " + error.text() + ".";
        return nullptr;
    }
    dbus_connection_set_exit_on_disconnect(connection, FALSE);
    std::unique_ptr<SessionBus> bus(new SessionBus(connection));
    if (!dbus_bus_register(connection, &error.error)) {
        why = "The session bus did not take us: " + error.text() + ".";
        return nullptr;
    }
    return bus;
}

SessionBus::~SessionBus()
{
    dbus_connection_close(connection_);
    dbus_connection_unref(connection_);
}

SessionBus::NameAnswer SessionBus::requestName(const std::string &name, bool replaceOwner)
{
    BusError error;
    const unsigned flags = DBUS_NAME_FLAG_DO_NOT_QUEUE | DBUS_NAME_FLAG_ALLOW_REPLACEMENT |
                           (replaceOwner ? DBUS_NAME_FLAG_REPLACE_EXISTING : 0u);
    const int answer = dbus_bus_request_name(connection_, name.c_str(), flags, &error.error);
    if (answer == DBUS_REQUEST_NAME_REPLY_PRIMARY_OWNER || answer == DBUS_REQUEST_NAME_REPLY_ALREADY_OWNER)
        return NameAnswer::owned;
    return answer == DBUS_REQUEST_NAME_REPLY_EXISTS ? NameAnswer::taken : NameAnswer::failed;
}

void SessionBus::releaseName(const std::string &name)
{
    BusError error;
    dbus_bus_release_name(connection_, name.c_str(), &error.error);
}

BusMessage SessionBus::call(DBusMessage *request, int timeoutMs)
{
    BusError error;
    return BusMessage(
        dbus_connection_send_with_reply_and_block(connection_, request, timeoutMs, &error.error));
}

int SessionBus::descriptor() const
{
    int descriptor = -1;
    return dbus_connection_get_unix_fd(connection_, &descriptor) ? descriptor : -1;
}

} // namespace kelp_core
