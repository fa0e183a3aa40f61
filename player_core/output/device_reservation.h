#pragma once

#include "player_core/output/wake_event.h"

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>
#include <thread>

struct DBusMessage;

namespace kelp_core {

class SessionBus;

/// Holds a sound card by the desktop's device reservation, the name org.freedesktop.ReserveDevice1.Audio<N>
/// on the session bus, so that the desktop's sound server lets go of it and takes it back afterwards. While
/// it is held a thread of its own answers what others ask. Destruction gives the card back, and is done when
/// the name is free.
class DeviceReservation
{
public:
    /// Ours. Below that of programs which need a card in real time, so that the listener can give it to one.
    static constexpr int32_t priority = 20;

    struct Outcome
    {
        std::unique_ptr<DeviceReservation> held; ///< null when there is no bus, or when refused
        bool refused = false;                    ///< another program has the card and keeps it
        std::string note;                        ///< one sentence on what happened
    };

    /// Asks for a card, and its present holder to let go of it. May block for about three seconds.
    static Outcome acquire(int card, const std::string &deviceName);

    ~DeviceReservation();
    DeviceReservation(const DeviceReservation &) = delete;
    DeviceReservation &operator=(const DeviceReservation &) = delete;

    /// A program of higher priority wants the card or took it: close the device and destroy this. Any thread.
    bool lost() const { return lost_; }

private:
    DeviceReservation(std::unique_ptr<SessionBus> bus, int card, std::string deviceName);
    void run();
    void answer(DBusMessage *message);
    void answerRelease(DBusMessage *message);
    void answerProperty(DBusMessage *message);
    void answerAllProperties(DBusMessage *message);
    void reply(DBusMessage *message, bool value);

    std::unique_ptr<SessionBus> bus_; ///< used by thread_ alone once it runs
    std::string name_;
    std::string path_;
    std::string deviceName_;
    DBusMessage *pendingRelease_ = nullptr; ///< thread_ only: the request that made us lose the card
    std::atomic<bool> lost_{false};
    WakeEvent stop_;
    std::thread thread_;
};

} // namespace kelp_core
