#include "player_core/output/device_reservation.h"
#include "player_core/output/session_bus.h"

#include "support/process_count.h"
#include "support_devices/private_bus.h"

#include <dbus/dbus.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

using namespace kelp_core;
using test_devices::PrivateBus;
using test_devices::PrivatePlace;
using ::testing::HasSubstr;

namespace {

constexpr const char *cardName = "org.freedesktop.ReserveDevice1.Audio3";
constexpr const char *cardPath = "/org/freedesktop/ReserveDevice1/Audio3";

/// Another program that holds a card and answers the request to let go in the way it was told to.
class Holder
{
public:
    explicit Holder(bool letsGo)
        : letsGo_(letsGo)
    {
        std::string why;
        bus_ = SessionBus::connect(why);
        EXPECT_TRUE(bus_) << why;
        EXPECT_EQ(bus_->requestName(cardName, false), SessionBus::NameAnswer::owned);
        thread_ = std::thread([this] { run(); });
    }
    ~Holder()
    {
        stop_ = true;
        thread_.join();
    }
    int32_t askedWith() const { return askedWith_; }

private:
    void run()
    {
        while (!stop_ && dbus_connection_read_write(bus_->connection(), 5)) {
            while (DBusMessage *message = dbus_connection_pop_message(bus_->connection())) {
                answer(message);
                dbus_message_unref(message);
            }
        }
    }
    void answer(DBusMessage *message)
    {
        if (dbus_message_is_method_call(message, "org.freedesktop.ReserveDevice1", "RequestRelease")) {
            dbus_int32_t priority = 0;
            dbus_message_get_args(message, nullptr, DBUS_TYPE_INT32, &priority, DBUS_TYPE_INVALID);
            askedWith_ = priority;
            BusMessage reply(dbus_message_new_method_return(message));
            const dbus_bool_t result = letsGo_;
            dbus_message_append_args(reply.get(), DBUS_TYPE_BOOLEAN, &result, DBUS_TYPE_INVALID);
            dbus_connection_send(bus_->connection(), reply.get(), nullptr);
        } else if (dbus_message_is_method_call(message, "org.freedesktop.DBus.Properties", "Get")) {
            BusMessage reply(dbus_message_new_method_return(message));
            DBusMessageIter iterator;
            DBusMessageIter variant;
            const char *name = "A Sound Server";
            dbus_message_iter_init_append(reply.get(), &iterator);
            dbus_message_iter_open_container(&iterator, DBUS_TYPE_VARIANT, "s", &variant);
            dbus_message_iter_append_basic(&variant, DBUS_TYPE_STRING, &name);
            dbus_message_iter_close_container(&iterator, &variant);
            dbus_connection_send(bus_->connection(), reply.get(), nullptr);
        }
    }

    bool letsGo_;
    std::unique_ptr<SessionBus> bus_;
    std::atomic<bool> stop_{false};
    std::atomic<int32_t> askedWith_{-1};
    std::thread thread_;
};

std::unique_ptr<SessionBus> client()
{
    std::string why;
    return SessionBus::connect(why);
}

BusMessage askForRelease(SessionBus &bus, int32_t priority, int timeoutMs)
{
    BusMessage request(
        dbus_message_new_method_call(cardName, cardPath, "org.freedesktop.ReserveDevice1", "RequestRelease"));
    const dbus_int32_t value = priority;
    dbus_message_append_args(request.get(), DBUS_TYPE_INT32, &value, DBUS_TYPE_INVALID);
    return bus.call(request.get(), timeoutMs);
}

bool saysYes(const BusMessage &answer)
{
    dbus_bool_t yes = FALSE;
    return answer &&
           dbus_message_get_args(answer.get(), nullptr, DBUS_TYPE_BOOLEAN, &yes, DBUS_TYPE_INVALID) && yes;
}

class DeviceReservationTest : public ::testing::Test
{
protected:
    void SetUp() override
    {
        if (!bus.missing().empty())
            GTEST_SKIP() << bus.missing();
    }
    PrivatePlace place;
    PrivateBus bus{place};
};

TEST_F(DeviceReservationTest, HoldsTheNameAndGivesItBack)
{
    {
        const DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
        ASSERT_TRUE(outcome.held) << outcome.note;
        EXPECT_FALSE(outcome.refused);
        EXPECT_EQ(outcome.note, "Card 3 is reserved on the session bus.");
        EXPECT_TRUE(dbus_bus_name_has_owner(client()->connection(), cardName, nullptr));
    }
    EXPECT_FALSE(dbus_bus_name_has_owner(client()->connection(), cardName, nullptr));
}

TEST_F(DeviceReservationTest, TellsOthersWhoHoldsTheCard)
{
    const DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    ASSERT_TRUE(outcome.held) << outcome.note;
    const auto other = client();
    const struct
    {
        const char *property;
        int type;
        std::string text;
    } rows[] = {{"ApplicationName", DBUS_TYPE_STRING, "KelpPlayer"},
                {"ApplicationDeviceName", DBUS_TYPE_STRING, "hw:3,0"},
                {"Priority", DBUS_TYPE_INT32, "20"}};
    for (const auto &row : rows) {
        BusMessage request(
            dbus_message_new_method_call(cardName, cardPath, "org.freedesktop.DBus.Properties", "Get"));
        const char *interface = "org.freedesktop.ReserveDevice1";
        dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_STRING, &row.property,
                                 DBUS_TYPE_INVALID);
        const BusMessage answer = other->call(request.get(), 2000);
        ASSERT_TRUE(answer) << row.property;
        DBusMessageIter iterator;
        DBusMessageIter variant;
        dbus_message_iter_init(answer.get(), &iterator);
        dbus_message_iter_recurse(&iterator, &variant);
        ASSERT_EQ(dbus_message_iter_get_arg_type(&variant), row.type);
        if (row.type == DBUS_TYPE_STRING) {
            const char *text = nullptr;
            dbus_message_iter_get_basic(&variant, &text);
            EXPECT_EQ(text, row.text);
        } else {
            dbus_int32_t number = 0;
            dbus_message_iter_get_basic(&variant, &number);
            EXPECT_EQ(std::to_string(number), row.text);
        }
    }
    for (const char *method :
         {"org.freedesktop.DBus.Properties.GetAll", "org.freedesktop.DBus.Introspectable.Introspect"}) {
        const std::string whole = method;
        const size_t dot = whole.rfind('.');
        BusMessage request(dbus_message_new_method_call(cardName, cardPath, whole.substr(0, dot).c_str(),
                                                        whole.substr(dot + 1).c_str()));
        const char *interface = "org.freedesktop.ReserveDevice1";
        if (whole.ends_with("GetAll"))
            dbus_message_append_args(request.get(), DBUS_TYPE_STRING, &interface, DBUS_TYPE_INVALID);
        EXPECT_TRUE(other->call(request.get(), 2000)) << method;
    }
    BusMessage nonsense(dbus_message_new_method_call(cardName, cardPath, "org.example.No", "Such"));
    EXPECT_FALSE(other->call(nonsense.get(), 2000)) << "an error comes back, and at once";
}

TEST_F(DeviceReservationTest, TakesTheCardFromOneThatLetsGo)
{
    const Holder holder(true);
    const DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    ASSERT_TRUE(outcome.held) << outcome.note;
    EXPECT_EQ(holder.askedWith(), DeviceReservation::priority);
    EXPECT_EQ(outcome.note, "Card 3 is reserved on the session bus; A Sound Server gave it up.");
}

TEST_F(DeviceReservationTest, IsRefusedByOneThatKeepsIt)
{
    const Holder holder(false);
    const DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    EXPECT_FALSE(outcome.held);
    EXPECT_TRUE(outcome.refused);
    EXPECT_EQ(outcome.note, "Card 3 is reserved by A Sound Server, which keeps it.");
}

TEST_F(DeviceReservationTest, KeepsTheCardFromItsEqualsAndYieldsToHigherOnes)
{
    DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    ASSERT_TRUE(outcome.held) << outcome.note;
    const auto other = client();
    const BusMessage kept = askForRelease(*other, DeviceReservation::priority, 2000);
    ASSERT_TRUE(kept);
    EXPECT_FALSE(saysYes(kept));
    EXPECT_FALSE(outcome.held->lost());
    std::thread closer([&outcome] {
        kelp_test::waitUntil([&outcome] { return outcome.held->lost(); });
        outcome.held.reset();
    });
    EXPECT_TRUE(saysYes(askForRelease(*other, DeviceReservation::priority + 1, 10000)))
        << "the answer comes when the device is closed";
    closer.join();
    EXPECT_EQ(other->requestName(cardName, true), SessionBus::NameAnswer::owned);
}

TEST_F(DeviceReservationTest, NoticesThatItWasReplaced)
{
    const DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    ASSERT_TRUE(outcome.held) << outcome.note;
    const auto other = client();
    EXPECT_EQ(other->requestName(cardName, true), SessionBus::NameAnswer::owned);
    EXPECT_TRUE(kelp_test::waitUntil([&outcome] { return outcome.held->lost(); }));
}

TEST_F(DeviceReservationTest, SurvivesTheEndOfTheBus)
{
    DeviceReservation::Outcome outcome = DeviceReservation::acquire(3, "hw:3,0");
    ASSERT_TRUE(outcome.held) << outcome.note;
    bus.kill();
    outcome.held.reset();
    EXPECT_FALSE(DeviceReservation::acquire(3, "hw:3,0").refused);
}

TEST_F(DeviceReservationTest, TwoHundredRoundsLeaveNothingBehind)
{
    ASSERT_TRUE(DeviceReservation::acquire(3, "hw:3,0").held);
    const int descriptors = kelp_test::openDescriptors();
    const int threads = kelp_test::runningThreads();
    for (int i = 0; i < 200; ++i)
        ASSERT_TRUE(DeviceReservation::acquire(3, "hw:3,0").held) << i;
    EXPECT_LE(kelp_test::fallsTo(descriptors, kelp_test::openDescriptors), descriptors);
    EXPECT_LE(kelp_test::fallsTo(threads, kelp_test::runningThreads), threads);
}

TEST(DeviceReservation, GoesOnWithoutABus)
{
    PrivatePlace place;
    const DeviceReservation::Outcome outcome = DeviceReservation::acquire(0, "hw:0,0");
    EXPECT_FALSE(outcome.held);
    EXPECT_FALSE(outcome.refused);
    EXPECT_EQ(outcome.note, "Card 0 is opened without a reservation. There is no session bus.");
    place.setVariable("DBUS_SESSION_BUS_ADDRESS", "unix:path=/nonexistent/bus");
    EXPECT_THAT(DeviceReservation::acquire(0, "hw:0,0").note, HasSubstr("cannot be reached"));
    place.setVariable("DBUS_SESSION_BUS_ADDRESS", "autolaunch:");
    EXPECT_THAT(DeviceReservation::acquire(0, "hw:0,0").note, HasSubstr("There is no session bus."));
}

} // namespace
