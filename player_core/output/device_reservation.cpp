#include "player_core/output/device_reservation.h"

#include "player_core/output/session_bus.h"

#include <dbus/dbus.h>

#include <poll.h>
#include <string_view>

namespace kelp_core {
namespace {

constexpr const char *reserveInterface = "org.freedesktop.ReserveDevice1";
constexpr const char *propertiesInterface = "org.freedesktop.DBus.Properties";
constexpr const char *applicationName = "KelpPlayer";
constexpr int releaseTimeoutMs = 2000;
constexpr int propertyTimeoutMs = 500;
constexpr const char *introspection =
    R"(<!DOCTYPE node PUBLIC "-//freedesktop//DTD D-BUS Object Introspection 1.0//EN")"
    R"( "http://www.freedesktop.org/standards/dbus/1.0/introspect.dtd"><node>)"
    R"(<interface name="org.freedesktop.ReserveDevice1"><method name="RequestRelease">)"
    R"(<arg name="priority" type="i" direction="in"/><arg name="result" type="b" direction="out"/></method>)"
    R"(<property name="Priority" type="i" access="read"/>)"
    R"(<property name="ApplicationName" type="s" access="read"/>)"
    R"(<property name="ApplicationDeviceName" type="s" access="read"/></interface>)"
    R"(<interface name="org.freedesktop.DBus.Properties"><method name="Get">)"
    R"(<arg name="interface" direction="in" type="s"/><arg name="property" direction="in" type="s"/>)"
    R"(<arg name="value" direction="out" type="v"/></method><method name="GetAll">)"
    R"(<arg name="interface" direction="in" type="s"/><arg name="properties" direction="out" type="a{sv}"/>)"
    R"(</method></interface></node>)";

std::string nameOf(int card)
{
    return std::string(reserveInterface) + ".Audio" + std::to_string(card);
}

std::string pathOf(int card)
{
    return "/org/freedesktop/ReserveDevice1/Audio" + std::to_string(card);
}

/// True when the present holder says that it let go.
bool holderLetsGo(SessionBus &bus, const std::string &name, const std::string &path)
{
    BusMessage request(
        dbus_message_new_method_call(name.c_str(), path.c_str(), reserveInterface, "RequestRelease"));
    const dbus_int32_t ours = DeviceReservation::priority;
    dbus_message_append_args(request.get(), DBUS_TYPE_INT32, &ours, DBUS_TYPE_INVALID);
    const BusMessage answer = bus.call(request.get(), releaseTimeoutMs);
    dbus_bool_t letGo = FALSE;
    return answer &&
           dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_BOOLEAN, &letGo, DBUS_TYPE_INVALID) &&
           letGo;
}

/// What the holder calls itself; "another program" when it does not say.
std::string holderName(SessionBus &bus, const std::string &name, const std::string &path)
{
    BusMessage request(dbus_message_new_method_call(name.c_str(), path.c_str(), propertiesInterface, "Get"));
    const char *interface = reserveInterface;
    const char *property = "ApplicationName";
    dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                             DBUS_TYPE_INVALID);
    const BusMessage answer = bus.call(request.get(), propertyTimeoutMs);
    DBusMessageIter outer;
    if (answer && dbus_message_iter_init(answer.get(), &outer) &&
        dbus_message_iter_get_arg_type(&outer) == DBUS_TYPE_VARIANT) {
        DBusMessageIter inner;
        dbus_message_iter_recurse(&outer, &inner);
        if (dbus_message_iter_get_arg_type(&inner) == DBUS_TYPE_STRING) {
            const char *text = nullptr;
            dbus_message_iter_get_basic(&inner, &text);
            if (text && *text)
                return text;
        }
    }
    return "another program";
}

void appendVariant(DBusMessageIter &to, int type, const void *value)
{
    const char signature[] = {static_cast<char>(type), '\0'};
    DBusMessageIter variant;
    dbus_message_iter_open_container(&to, DBUS_TYPE_VARIANT, signature, &variant);
    dbus_message_iter_append_basic(&variant, type, value);
    dbus_message_iter_close_container(&to, &variant);
}

void appendEntry(DBusMessageIter &to, const char *key, int type, const void *value)
{
    DBusMessageIter entry;
    dbus_message_iter_open_container(&to, DBUS_TYPE_DICT_ENTRY, nullptr, &entry);
    dbus_message_iter_append_basic(&entry, DBUS_TYPE_STRING, &key);
    appendVariant(entry, type, value);
    dbus_message_iter_close_container(&to, &entry);
}

} // namespace

DeviceReservation::Outcome DeviceReservation::acquire(int card, const std::string &deviceName)
{
    Outcome outcome;
    std::string why;
    std::unique_ptr<SessionBus> bus = SessionBus::connect(why);
    if (!bus) {
        outcome.note = "Card " + std::to_string(card) + " is opened without a reservation. " + why;
        return outcome;
    }
    const std::string name = nameOf(card);
    const std::string path = pathOf(card);
    SessionBus::NameAnswer answer = bus->requestName(name, false);
    std::string holder;
    if (answer == SessionBus::NameAnswer::taken) {
        holder = holderName(*bus, name, path);
        if (holderLetsGo(*bus, name, path))
            answer = bus->requestName(name, true);
    }
    if (answer == SessionBus::NameAnswer::owned) {
        outcome.held.reset(new DeviceReservation(std::move(bus), card, deviceName));
        outcome.note = "Card " + std::to_string(card) + " is reserved on the session bus" +
                       (holder.empty() ? "." : "; " + holder + " gave it up.");
    } else if (answer == SessionBus::NameAnswer::taken) {
        outcome.refused = true;
        outcome.note = "Card " + std::to_string(card) + " is reserved by " + holder + ", which keeps it.";
    } else {
        outcome.note = "Card " + std::to_string(card) +
                       " is opened without a reservation. The session bus did not give its name out.";
    }
    return outcome;
}

DeviceReservation::DeviceReservation(std::unique_ptr<SessionBus> bus, int card, std::string deviceName)
    : bus_(std::move(bus))
    , name_(nameOf(card))
    , path_(pathOf(card))
    , deviceName_(std::move(deviceName))
{
    if (!dbus_validate_utf8(deviceName_.c_str(), nullptr)) // libdbus ends the process over such a string
        deviceName_ = "sound card";
    thread_ = std::thread([this] { run(); });
}

DeviceReservation::~DeviceReservation()
{
    stop_.signal();
    thread_.join();
}

void DeviceReservation::run()
{
    DBusConnection *connection = bus_->connection();
    bool alive = true;
    while (alive) {
        while (DBusMessage *message = dbus_connection_pop_message(connection)) {
            answer(message);
            dbus_message_unref(message);
        }
        dbus_connection_flush(connection);
        pollfd entries[] = {{bus_->descriptor(), POLLIN, 0}, {stop_.descriptor(), POLLIN, 0}};
        ::poll(entries, 2, -1);
        if (entries[1].revents != 0)
            break;
        alive = dbus_connection_read_write(connection, 0);
    }
    if (!alive) { // The bus went away; nobody is left to answer, so only the end is waited for.
        pollfd entry{stop_.descriptor(), POLLIN, 0};
        ::poll(&entry, 1, -1);
    }
    if (pendingRelease_) {
        reply(pendingRelease_, true);
        dbus_message_unref(pendingRelease_);
    }
    bus_->releaseName(name_);
    dbus_connection_flush(connection);
}

void DeviceReservation::reply(DBusMessage *message, bool value)
{
    BusMessage answerMessage(dbus_message_new_method_return(message));
    const dbus_bool_t result = value ? TRUE : FALSE;
    dbus_message_append_args(answerMessage.get(), DBUS_TYPE_BOOLEAN, &result, DBUS_TYPE_INVALID);
    dbus_connection_send(bus_->connection(), answerMessage.get(), nullptr);
}

void DeviceReservation::answer(DBusMessage *message)
{
    if (dbus_message_is_signal(message, DBUS_INTERFACE_DBUS, "NameLost")) {
        const char *lostName = nullptr;
        if (dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &lostName, DBUS_TYPE_INVALID) &&
            name_ == lostName)
            lost_ = true;
        return;
    }
    if (dbus_message_get_type(message) != DBUS_MESSAGE_TYPE_METHOD_CALL)
        return;
    const bool ours = dbus_message_has_path(message, path_.c_str());
    if (ours && dbus_message_is_method_call(message, reserveInterface, "RequestRelease"))
        return answerRelease(message);
    if (ours && dbus_message_is_method_call(message, propertiesInterface, "Get"))
        return answerProperty(message);
    if (ours && dbus_message_is_method_call(message, propertiesInterface, "GetAll"))
        return answerAllProperties(message);
    BusMessage answerMessage;
    if (ours && dbus_message_is_method_call(message, DBUS_INTERFACE_INTROSPECTABLE, "Introspect")) {
        answerMessage.reset(dbus_message_new_method_return(message));
        dbus_message_append_args(answerMessage.get(), DBUS_TYPE_STRING, &introspection, DBUS_TYPE_INVALID);
    } else {
        answerMessage.reset(dbus_message_new_error(message, DBUS_ERROR_UNKNOWN_METHOD, "No such method."));
    }
    dbus_connection_send(bus_->connection(), answerMessage.get(), nullptr);
}

void DeviceReservation::answerRelease(DBusMessage *message)
{
    dbus_int32_t theirs = 0;
    const bool understood =
        dbus_message_get_args(message, nullptr, DBUS_TYPE_INT32, &theirs, DBUS_TYPE_INVALID);
    if (!understood || theirs <= priority || pendingRelease_)
        return reply(message, false);
    // The answer is "yes" only when the device is closed, which is when we are destroyed.
    pendingRelease_ = dbus_message_ref(message);
    lost_ = true;
}

void DeviceReservation::answerProperty(DBusMessage *message)
{
    const char *interface = nullptr;
    const char *property = nullptr;
    BusMessage answerMessage;
    if (dbus_message_get_args(message, nullptr, DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &property,
                              DBUS_TYPE_INVALID) &&
        std::string_view(interface) == reserveInterface) {
        answerMessage.reset(dbus_message_new_method_return(message));
        DBusMessageIter arguments;
        dbus_message_iter_init_append(answerMessage.get(), &arguments);
        const dbus_int32_t ours = priority;
        const char *device = deviceName_.c_str();
        const std::string_view wanted = property;
        if (wanted == "Priority")
            appendVariant(arguments, DBUS_TYPE_INT32, &ours);
        else if (wanted == "ApplicationName")
            appendVariant(arguments, DBUS_TYPE_STRING, &applicationName);
        else if (wanted == "ApplicationDeviceName")
            appendVariant(arguments, DBUS_TYPE_STRING, &device);
        else
            answerMessage.reset();
    }
    if (!answerMessage)
        answerMessage.reset(
            dbus_message_new_error(message, DBUS_ERROR_UNKNOWN_PROPERTY, "No such property."));
    dbus_connection_send(bus_->connection(), answerMessage.get(), nullptr);
}

void DeviceReservation::answerAllProperties(DBusMessage *message)
{
    BusMessage answerMessage(dbus_message_new_method_return(message));
    DBusMessageIter arguments;
    DBusMessageIter dictionary;
    dbus_message_iter_init_append(answerMessage.get(), &arguments);
    dbus_message_iter_open_container(&arguments, DBUS_TYPE_ARRAY, "{sv}", &dictionary);
    const dbus_int32_t ours = priority;
    const char *device = deviceName_.c_str();
    appendEntry(dictionary, "Priority", DBUS_TYPE_INT32, &ours);
    appendEntry(dictionary, "ApplicationName", DBUS_TYPE_STRING, &applicationName);
    appendEntry(dictionary, "ApplicationDeviceName", DBUS_TYPE_STRING, &device);
    dbus_message_iter_close_container(&arguments, &dictionary);
    dbus_connection_send(bus_->connection(), answerMessage.get(), nullptr);
}

} // namespace kelp_core
