// The listener out of its own library, as the program gets it.
#include "net/remote_module.h"
#include "platform/program_library.h"

#include <gtest/gtest.h>

#include <QTcpSocket>

using namespace Qt::StringLiterals;

namespace {

RemoteHost idleHost()
{
    return {[] { return RemoteState(); }, [](int) { return RemoteLibrary(); }, [](const RemoteCommand &) {},
            [](const std::string &) {}};
}

} // namespace

TEST(RemoteModule, ListensAndKnowsItsAddresses)
{
    QString error;
    void *const library = loadLibrary({QStringLiteral(KELP_NET_LIBRARY)}, error);
    ASSERT_TRUE(library) << qPrintable(error);
    const auto make =
        findEntry<decltype(&kelp_player_make_remote)>(library, "kelp_player_make_remote", error);
    ASSERT_TRUE(make) << qPrintable(error);
    QObject parent;
    RemoteListener *const listener = make(idleHost(), &parent);
    EXPECT_EQ(listener->parent(), &parent);
    ASSERT_TRUE(listener->listen(0)) << qPrintable(listener->errorText());
    EXPECT_FALSE(listener->token().isEmpty());
    QTcpSocket client;
    client.connectToHost(QHostAddress::LocalHost, listener->port());
    EXPECT_TRUE(client.waitForConnected());
    for (const QString &address : listener->addresses()) {
        EXPECT_EQ(QHostAddress(address).protocol(), QAbstractSocket::IPv4Protocol) << qPrintable(address);
        EXPECT_FALSE(QHostAddress(address).isLoopback());
    }
    listener->close();
    EXPECT_FALSE(listener->isListening());
    EXPECT_TRUE(listener->token().isEmpty());
}

TEST(RemoteModule, WithoutItsLibraryThereIsASentence)
{
    // This test lies in a folder of its own, where the program's libraries are not.
    QObject parent;
    QString error;
    EXPECT_EQ(makeRemoteListener(idleHost(), &parent, error), nullptr);
    EXPECT_TRUE(error.contains(u"libkelp_player_net.so"_s)) << qPrintable(error);
    EXPECT_TRUE(parent.children().isEmpty());
}
