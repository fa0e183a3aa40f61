// The desktop's preference for light or dark, as its settings portal tells it on a session bus of the test's
// own.
#include "platform/system_scheme.h"

#include "support_devices/private_bus.h"

#include "tests/support/patience.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

constexpr uint noPreference = 0;
constexpr uint dark = 1;
constexpr uint light = 2;
using kelp_test::patienceMs;

/// Answers as a desktop's portal does.
class FakePortal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    void choose(uint scheme, const QString &key = u"color-scheme"_s)
    {
        m_scheme = scheme;
        Q_EMIT SettingChanged(u"org.freedesktop.appearance"_s, key, QDBusVariant(scheme));
    }
    int asked = 0;

public Q_SLOTS:
    /// The value in a variant in the reply's variant, as this call has always had it.
    QDBusVariant Read(const QString &space, const QString &key)
    {
        ++asked;
        const bool known = space == u"org.freedesktop.appearance"_s && key == u"color-scheme"_s;
        return QDBusVariant(QVariant::fromValue(QDBusVariant(known ? m_scheme : noPreference)));
    }

Q_SIGNALS:
    void SettingChanged(const QString &space, const QString &key, const QDBusVariant &value);

private:
    uint m_scheme = dark;
};

} // namespace

TEST(SystemScheme, FollowsThePortalWhileTheProgramRuns)
{
    test_devices::PrivatePlace place;
    test_devices::PrivateBus bus(place);
    if (!bus.missing().empty())
        GTEST_SKIP() << bus.missing();
    const bool paletteIsLight = QGuiApplication::palette().color(QPalette::Window).lightness() >= 128;
    const SystemScheme alone;
    QTest::qWait(50);
    EXPECT_EQ(alone.prefersLight(), paletteIsLight) << "nobody has the portal's name";

    QDBusConnection desktop = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
    FakePortal portal;
    ASSERT_TRUE(desktop.registerObject(u"/org/freedesktop/portal/desktop"_s, &portal,
                                       QDBusConnection::ExportAllSlots | QDBusConnection::ExportAllSignals));
    ASSERT_TRUE(desktop.registerService(u"org.freedesktop.portal.Desktop"_s));

    SystemScheme scheme;
    QSignalSpy changes(&scheme, &SystemScheme::changed);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !changes.isEmpty(); }, patienceMs)) << "asked at the start";
    EXPECT_EQ(portal.asked, 1);
    EXPECT_FALSE(scheme.prefersLight());

    changes.clear();
    portal.choose(light);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !changes.isEmpty(); }, patienceMs));
    EXPECT_TRUE(scheme.prefersLight());
    changes.clear();
    portal.choose(dark, u"contrast"_s);
    portal.choose(dark);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !changes.isEmpty(); }, patienceMs));
    EXPECT_FALSE(scheme.prefersLight());
    EXPECT_EQ(changes.size(), 1) << "another setting of the appearance is none of ours";
    changes.clear();
    portal.choose(noPreference);
    ASSERT_TRUE(QTest::qWaitFor([&] { return !changes.isEmpty(); }, patienceMs));
    EXPECT_EQ(scheme.prefersLight(), paletteIsLight);
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "system_scheme_test.moc"
