// The file manager on a session bus of the test's own.
#include "platform/file_manager.h"

#include "support_devices/private_bus.h"

#include "tests/support/patience.h"

#include <QCoreApplication>
#include <QDBusConnection>
#include <QTest>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

/// Answers as a desktop's file manager does.
class FakeFileManager : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")

public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList &uris, const QString &) { shown = uris; }
};

} // namespace

TEST(FileManager, IsAskedAndItsAbsenceIsTold)
{
    test_devices::PrivatePlace place;
    test_devices::PrivateBus bus(place);
    if (!bus.missing().empty())
        GTEST_SKIP() << bus.missing();
    QObject context;
    bool refused = false;
    showInFileManager({u"/m/a.flac"_s}, &context, [&refused] { refused = true; });
    ASSERT_TRUE(QTest::qWaitFor([&refused] { return refused; }, kelp_test::patienceMs))
        << "nobody has the name";

    QDBusConnection desktop = QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"desktop"_s);
    FakeFileManager manager;
    ASSERT_TRUE(desktop.registerObject(u"/org/freedesktop/FileManager1"_s, &manager,
                                       QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(desktop.registerService(u"org.freedesktop.FileManager1"_s));
    refused = false;
    showInFileManager({u"/m/a b#%.flac"_s, u"/m/武.dsf"_s}, &context, [&refused] { refused = true; });
    ASSERT_TRUE(QTest::qWaitFor([&manager] { return !manager.shown.isEmpty(); }, kelp_test::patienceMs));
    EXPECT_EQ(manager.shown, (QStringList{u"file:///m/a%20b%23%25.flac"_s, u"file:///m/%E6%AD%A6.dsf"_s}));
    EXPECT_FALSE(refused);
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}

#include "file_manager_test.moc"
