// Two hundred phones at once: all are answered, and what it costs the thread is printed.
#include "net/remote_server.h"

#include "tests/support/patience.h"

#include <QElapsedTimer>
#include <QTest>
#include <QTimer>
#include <arpa/inet.h>
#include <atomic>
#include <cerrno>
#include <cstdio>
#include <gtest/gtest.h>
#include <poll.h>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>

namespace {

using kelp_test::patienceMs;
constexpr int tickMs = 20;

/// Connects all, then asks with all, then reads all; the number that got a whole answer.
int askAtOnce(quint16 port, int count, const std::string &request, const std::string &wanted)
{
    std::vector<int> sockets;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    for (int i = 0; i < count; ++i) {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
        if (::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) != 0 &&
            errno != EINPROGRESS) {
            ::close(socket);
            continue;
        }
        sockets.push_back(socket);
    }
    for (const int socket : sockets) {
        pollfd writable{socket, POLLOUT, 0};
        ::poll(&writable, 1, patienceMs);
        static_cast<void>(::send(socket, request.data(), request.size(), MSG_NOSIGNAL));
    }
    int answered = 0;
    for (const int socket : sockets) {
        std::string answer;
        char piece[65536];
        for (;;) {
            pollfd readable{socket, POLLIN, 0};
            if (::poll(&readable, 1, patienceMs) <= 0)
                break;
            const ssize_t got = ::recv(socket, piece, sizeof piece, 0);
            if (got <= 0)
                break;
            answer.append(piece, static_cast<std::size_t>(got));
        }
        answered += answer.find(wanted) != std::string::npos ? 1 : 0;
        ::close(socket);
    }
    return answered;
}

} // namespace

TEST(RemoteServerCrowd, TwoHundredAtOnceAreAllAnswered)
{
    constexpr int crowd = 200;
    RemoteLibrary library;
    library.total = 1000;
    for (int i = 0; i < 1000; ++i)
        library.items.push_back(
            {"A title of a usual length, number " + std::to_string(i), "An artist", false});
    RemoteServer server({[] { return RemoteState{}; }, [&library](int) { return library; },
                         [](const RemoteCommand &) {}, [](const std::string &) {}});
    ASSERT_TRUE(server.listen(0));
    for (const auto &[path, wanted] : {std::pair<std::string, std::string>{"/state", "\"total\":0}"},
                                       {"/library", "\"current\":false}]}"}}) {
        QElapsedTimer since;
        qint64 longestNs = 0;
        QTimer tick;
        tick.setTimerType(Qt::PreciseTimer);
        QObject::connect(&tick, &QTimer::timeout, [&] {
            longestNs = std::max(longestNs, since.nsecsElapsed() - tickMs * 1'000'000LL);
            since.start();
        });
        const std::string request =
            "GET " + path + "?n=1000&t=" + server.token().toStdString() + " HTTP/1.1\r\n\r\n";
        std::atomic<int> answered{-1};
        std::thread clients(
            [&, port = server.port()] { answered = askAtOnce(port, crowd, request, wanted); });
        since.start();
        tick.start(tickMs);
        EXPECT_TRUE(QTest::qWaitFor([&] { return answered >= 0; }, 3 * patienceMs));
        clients.join();
        EXPECT_EQ(answered, crowd) << path;
        std::printf("%d connections at once for %s: a tick of %d ms came at most %.1f ms late\n", crowd,
                    path.c_str(), tickMs, static_cast<double>(longestNs) * 1e-6);
        EXPECT_TRUE(QTest::qWaitFor([&] { return server.connectionCount() == 0; }, patienceMs));
    }
}
