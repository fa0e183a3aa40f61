// The listener with real sockets.
#include "net/remote_server.h"

#include "tests/support/patience.h"

#include <QApplication>
#include <QTcpSocket>
#include <QTest>
#include <QTimer>
#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <linux/sockios.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using testing::HasSubstr;
using testing::StartsWith;

namespace {

using kelp_test::patienceMs;

/// A client of the plainest kind, on the loopback.
class Client
{
public:
    explicit Client(const RemoteServer &server)
    {
        m_socket.connectToHost(QHostAddress::LocalHost, server.port());
        EXPECT_TRUE(
            QTest::qWaitFor([this] { return m_socket.state() == QTcpSocket::ConnectedState; }, patienceMs));
    }
    void send(const QByteArray &bytes)
    {
        m_socket.write(bytes);
        m_socket.flush();
    }
    /// Sends it and waits until the server has read it: until the system has passed it on, and the event
    /// loop, which is the server's too, has turned behind that.
    void sendAlone(const QByteArray &bytes)
    {
        send(bytes);
        const int fd = static_cast<int>(m_socket.socketDescriptor());
        EXPECT_TRUE(QTest::qWaitFor(
            [fd] {
                int onTheirWay = 0;
                return ::ioctl(fd, SIOCOUTQ, &onTheirWay) == 0 && onTheirWay == 0;
            },
            patienceMs));
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
    }
    /// All that comes until the server ends the connection.
    std::string answer()
    {
        EXPECT_TRUE(QTest::qWaitFor([this] { return isEnded(); }, patienceMs)) << "the server did not end it";
        return m_socket.readAll().toStdString();
    }
    bool isEnded() const { return m_socket.state() == QTcpSocket::UnconnectedState; }
    QTcpSocket &socket() { return m_socket; }

private:
    QTcpSocket m_socket;
};

class RemoteServers : public testing::Test
{
protected:
    void make(const RemoteLimits &limits = {})
    {
        m_server = std::make_unique<RemoteServer>(m_host, nullptr, limits);
        ASSERT_TRUE(m_server->listen(0)) << qPrintable(m_server->errorText());
    }
    std::string ask(const QString &target)
    {
        Client client(*m_server);
        client.send("GET " + target.toUtf8() + " HTTP/1.1\r\nHost: x\r\n\r\n");
        return client.answer();
    }
    QString withToken(const QString &path) const { return path + u"?t="_s + m_server->token(); }
    void expectConnected(int count)
    {
        EXPECT_TRUE(QTest::qWaitFor([&] { return m_server->connectionCount() == count; }, patienceMs));
    }
    void expectAllGone() { expectConnected(0); }

    RemoteLibrary m_library;
    std::vector<RemoteCommand> m_commands;
    std::vector<std::string> m_rejected;
    std::function<void()> m_whileCommand = [] {};
    RemoteHost m_host{
        [] { return RemoteState{}; },
        [this](int) { return m_library; },
        [this](const RemoteCommand &command) {
            m_commands.push_back(command);
            m_whileCommand();
        },
        [this](const std::string &path) { m_rejected.push_back(path); },
    };
    std::unique_ptr<RemoteServer> m_server;
};

} // namespace

TEST_F(RemoteServers, AnswersAndEndsTheConnection)
{
    make();
    EXPECT_THAT(ask(u"/hello"_s), HasSubstr("needToken"));
    EXPECT_THAT(ask(withToken(u"/state"_s)), StartsWith("HTTP/1.1 200 OK\r\n"));
    EXPECT_THAT(ask(u"/state?t=wrong"_s), StartsWith("HTTP/1.1 401 "));
    EXPECT_EQ(m_rejected, std::vector<std::string>{"/state"});
    expectAllGone();
}

TEST_F(RemoteServers, EverySwitchingOnHasATokenOfItsOwn)
{
    make();
    const QString old = withToken(u"/state"_s);
    EXPECT_EQ(m_server->token().size(), 8);
    m_server->close();
    EXPECT_TRUE(m_server->token().isEmpty());
    EXPECT_FALSE(m_server->isListening());
    ASSERT_TRUE(m_server->listen(0));
    EXPECT_THAT(ask(old), StartsWith("HTTP/1.1 401 "));
    EXPECT_THAT(ask(withToken(u"/state"_s)), StartsWith("HTTP/1.1 200 "));
}

TEST_F(RemoteServers, APortInUseIsAnErrorWithAText)
{
    make();
    RemoteServer second(m_host);
    EXPECT_FALSE(second.listen(m_server->port()));
    EXPECT_FALSE(second.errorText().isEmpty());
    EXPECT_TRUE(second.token().isEmpty());
    EXPECT_FALSE(second.isListening());
}

TEST_F(RemoteServers, OnlyTheOldInternetProtocolIsServed)
{
    make();
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHostIPv6, m_server->port());
    EXPECT_TRUE(QTest::qWaitFor([&] { return socket.state() == QTcpSocket::UnconnectedState; }, patienceMs));
}

TEST_F(RemoteServers, ARequestInTwoPiecesIsLost)
{
    RemoteLimits limits;
    limits.requestWait = 400ms;
    make(limits);
    Client client(*m_server);
    expectConnected(1);
    client.sendAlone("GET /hello HTTP/1.1\r\nHost: ");
    client.send("x\r\n");
    EXPECT_EQ(client.answer(), "") << "dropped, and ended like one that never asked";
    expectAllGone();
}

TEST_F(RemoteServers, TheSecondPieceIsReadAsIfItWereTheFirst)
{
    make();
    Client client(*m_server);
    expectConnected(1);
    client.sendAlone("GET /cmd?do=stop&t=" + m_server->token().toLatin1());
    client.send(" HTTP/1.1\r\n\r\n");
    EXPECT_THAT(client.answer(), HasSubstr("bad request line"));
    EXPECT_TRUE(m_commands.empty());
}

TEST_F(RemoteServers, OfPipelinedRequestsTheFirstIsAnswered)
{
    make();
    Client client(*m_server);
    client.send("GET /hello HTTP/1.1\r\n\r\nGET /cmd?do=stop&t=" + m_server->token().toLatin1() +
                " HTTP/1.1\r\n\r\n");
    client.send("GET /cmd?do=stop&t=" + m_server->token().toLatin1() + " HTTP/1.1\r\n\r\n");
    const std::string answer = client.answer();
    EXPECT_THAT(answer, HasSubstr("needToken"));
    EXPECT_EQ(answer.find("HTTP/1.1", 1), std::string::npos) << "one answer";
    EXPECT_TRUE(m_commands.empty());
}

TEST_F(RemoteServers, ABodyIsNotRead)
{
    make();
    Client client(*m_server);
    client.send("POST /cmd?do=next&t=" + m_server->token().toLatin1() +
                " HTTP/1.1\r\nContent-Length: 4\r\n\r\ndo=x");
    EXPECT_THAT(client.answer(), StartsWith("HTTP/1.1 200 OK"));
    ASSERT_EQ(m_commands.size(), 1u);
    EXPECT_EQ(m_commands.front().action, RemoteAction::Next);
}

TEST_F(RemoteServers, AnEndlessRequestIsReadOnceAndAnswered)
{
    make();
    Client client(*m_server);
    client.send("GET /hello?" + QByteArray(4 << 20, 'x'));
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.isEnded(); }, patienceMs));
    expectAllGone();
}

TEST_F(RemoteServers, AClientThatClosesItsSideIsAnswered)
{
    make();
    Client client(*m_server);
    client.send("GET /hello HTTP/1.1\r\n\r\n");
    ::shutdown(static_cast<int>(client.socket().socketDescriptor()), SHUT_WR);
    EXPECT_THAT(client.answer(), HasSubstr("needToken"));
}

TEST_F(RemoteServers, WhoSendsNothingOrDripsIsEnded)
{
    RemoteLimits limits;
    limits.requestWait = 500ms;
    make(limits);
    Client silent(*m_server);
    Client slow(*m_server);
    int drops = 0;
    QTimer drip;
    QObject::connect(&drip, &QTimer::timeout, [&] {
        slow.send("x");
        ++drops;
    });
    drip.start(20ms);
    EXPECT_EQ(silent.answer(), "");
    EXPECT_EQ(slow.answer(), "") << "bytes do not buy time";
    EXPECT_GT(drops, 0);
    expectAllGone();
}

TEST_F(RemoteServers, WhoDoesNotTakeItsAnswerIsEnded)
{
    RemoteLimits limits;
    limits.answerWait = 500ms;
    make(limits);
    // More than the system buffers between the two.
    m_library = {{{std::string(32 << 20, 'x'), {}, false}}, 1};
    Client client(*m_server);
    client.socket().setReadBufferSize(1);
    client.send("GET /library?t=" + m_server->token().toLatin1() + " HTTP/1.1\r\n\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return client.socket().bytesAvailable() > 0; }, patienceMs));
    expectAllGone();
    client.socket().setReadBufferSize(0);
    EXPECT_LT(client.answer().size(), std::size_t{32} << 20);
}

TEST_F(RemoteServers, AFullServerMakesRoomForWhoAsks)
{
    RemoteLimits limits;
    limits.mostConnections = 4;
    make(limits);
    std::vector<std::unique_ptr<Client>> idle;
    for (int i = 0; i < 4; ++i) {
        idle.push_back(std::make_unique<Client>(*m_server));
        expectConnected(i + 1);
    }
    EXPECT_THAT(ask(u"/hello"_s), HasSubstr("needToken"));
    EXPECT_TRUE(QTest::qWaitFor([&] { return idle.front()->isEnded(); }, patienceMs)) << "the oldest goes";
    EXPECT_FALSE(idle.back()->isEnded());
    EXPECT_LE(m_server->connectionCount(), 4);
}

TEST_F(RemoteServers, GoesOnAfterTheSystemCouldNotAccept)
{
    make();
    const int first = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    ASSERT_GE(first, 0);
    rlimit usual{};
    ASSERT_EQ(::getrlimit(RLIMIT_NOFILE, &usual), 0);
    // The next descriptor is one too many.
    const rlimit none{static_cast<rlim_t>(first) + 1, usual.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_NOFILE, &none), 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(m_server->port());
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    EXPECT_EQ(::connect(first, reinterpret_cast<sockaddr *>(&address), sizeof address), 0);
    QTest::qWait(100);
    EXPECT_EQ(m_server->connectionCount(), 0) << "it could not be accepted";
    ::setrlimit(RLIMIT_NOFILE, &usual);
    EXPECT_THAT(ask(u"/hello"_s), HasSubstr("needToken"));
    ::close(first);
}

TEST_F(RemoteServers, ClosingEndsEveryConnection)
{
    make();
    Client one(*m_server);
    Client two(*m_server);
    expectConnected(2);
    m_server->close();
    EXPECT_EQ(m_server->connectionCount(), 0);
    EXPECT_EQ(one.answer(), "");
    EXPECT_EQ(two.answer(), "");
    ASSERT_TRUE(m_server->listen(0));
    Client left(*m_server);
    m_server.reset();
    EXPECT_EQ(left.answer(), "");
}

TEST_F(RemoteServers, ACommandMayCloseOrDeleteTheServer)
{
    make();
    m_whileCommand = [this] { m_server->close(); };
    EXPECT_EQ(ask(withToken(u"/cmd"_s) + u"&do=stop"_s), "");
    ASSERT_TRUE(m_server->listen(0));
    m_whileCommand = [this] { m_server.release()->deleteLater(); };
    Client client(*m_server);
    client.send("GET /cmd?do=stop&t=" + m_server->token().toLatin1() + " HTTP/1.1\r\n\r\n");
    static_cast<void>(client.answer());
    EXPECT_EQ(m_commands.size(), 2u);
}

TEST_F(RemoteServers, ADialogBehindACommandDoesNotHoldUpOthers)
{
    make();
    m_whileCommand = [this] { EXPECT_THAT(ask(u"/hello"_s), HasSubstr("needToken")); };
    EXPECT_THAT(ask(withToken(u"/cmd"_s) + u"&do=play"_s), StartsWith("HTTP/1.1 200 "));
}

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
