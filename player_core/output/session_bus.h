#pragma once

#include <memory>
#include <optional>
#include <string>

struct DBusConnection;
struct DBusMessage;

namespace kelp_core {

struct BusMessageDeleter
{
    void operator()(DBusMessage *message) const;
};
using BusMessage = std::unique_ptr<DBusMessage, BusMessageDeleter>;

/// A connection of our own to the desktop's session bus. One thread at a time; the thread may change.
class SessionBus
{
public:
    /// Null when there is no bus; why then says so in one sentence. Never starts a bus.
    static std::unique_ptr<SessionBus> connect(std::string &why);
    ~SessionBus();
    SessionBus(const SessionBus &) = delete;
    SessionBus &operator=(const SessionBus &) = delete;

    enum class NameAnswer
    {
        owned,
        taken,
        failed,
    };
    /// Asks for a well-known name, without queueing for it; others may replace us when they ask for that.
    NameAnswer requestName(const std::string &name, bool replaceOwner);
    void releaseName(const std::string &name);

    /// Calls and waits for the answer, at most so long. Null on an error or when the time is over.
    BusMessage call(DBusMessage *request, int timeoutMs);

    DBusConnection *connection() const { return connection_; }
    int descriptor() const;

private:
    explicit SessionBus(DBusConnection *connection)
        : connection_(connection)
    {
    }
    DBusConnection *connection_;
};

} // namespace kelp_core
