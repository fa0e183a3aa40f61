// How many requests the phone remote answers a second, and what that costs the window.
//
// usage: remote_load [SECONDS]    a whole window with 1000 rows on no display, private settings; four clients
// ask one connection a request, as fast as they are answered. The baseline, in the same run and loop, is a
// bare listener that answers a fixed body of the same size.
#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <algorithm>
#include <arpa/inet.h>
#include <atomic>
#include <cstdio>
#include <ctime>
#include <sys/socket.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int clients = 4;
constexpr int crowd = 200;
constexpr int rows = 1000;
constexpr int tickMs = 20;

/// One request on a connection of its own; the answer's size, 0 when there was none.
std::size_t exchange(quint16 port, const std::string &request)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    std::size_t size = 0;
    if (::connect(socket, reinterpret_cast<sockaddr *>(&address), sizeof address) == 0 &&
        ::send(socket, request.data(), request.size(), MSG_NOSIGNAL) > 0) {
        char piece[65536];
        for (ssize_t got = 0; (got = ::recv(socket, piece, sizeof piece, 0)) > 0;)
            size += static_cast<std::size_t>(got);
    }
    ::close(socket);
    return size;
}

double threadCpuSec()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

struct Measured
{
    double perSec = 0.;
    double latestMs = 0.;  ///< by how much a tick of the GUI thread came late
    double busiestMs = 0.; ///< the longest that this thread itself worked between two ticks
    std::size_t bytes = 0;
    int failed = 0;
};

/// Runs \p work on so many threads beside the event loop of this one.
Measured measure(int threads, const std::function<void(std::atomic<int> &answered, Measured &mine)> &work)
{
    std::atomic<int> answered{0};
    std::atomic<int> left{threads};
    std::vector<Measured> parts(static_cast<std::size_t>(threads));
    QElapsedTimer whole;
    QElapsedTimer since;
    qint64 latestNs = 0;
    double busyFromSec = threadCpuSec();
    double busiestSec = 0.;
    QTimer tick;
    QEventLoop loop;
    tick.setTimerType(Qt::PreciseTimer);
    QObject::connect(&tick, &QTimer::timeout, &loop, [&] {
        latestNs = std::max(latestNs, since.nsecsElapsed() - tickMs * 1'000'000LL);
        busiestSec = std::max(busiestSec, threadCpuSec() - busyFromSec);
        busyFromSec = threadCpuSec();
        since.start();
        if (left == 0)
            loop.quit();
    });
    whole.start();
    since.start();
    tick.start(tickMs);
    std::vector<std::thread> running;
    for (Measured &part : parts)
        running.emplace_back([&] {
            work(answered, part);
            --left;
        });
    loop.exec();
    for (std::thread &thread : running)
        thread.join();
    Measured sum;
    sum.perSec = answered / (static_cast<double>(whole.nsecsElapsed()) * 1e-9);
    sum.busiestMs = busiestSec * 1e3;
    sum.latestMs = static_cast<double>(latestNs) * 1e-6;
    for (const Measured &part : parts) {
        sum.bytes = std::max(sum.bytes, part.bytes);
        sum.failed += part.failed;
    }
    return sum;
}

Measured askForSeconds(quint16 port, const std::string &request, int seconds)
{
    return measure(clients, [&](std::atomic<int> &answered, Measured &mine) {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
        while (std::chrono::steady_clock::now() < end) {
            const std::size_t size = exchange(port, request);
            mine.bytes = std::max(mine.bytes, size);
            (size > 0 ? ++answered : ++mine.failed);
        }
    });
}

Measured askAtOnce(quint16 port, const std::string &request)
{
    return measure(crowd, [&](std::atomic<int> &answered, Measured &mine) {
        mine.bytes = exchange(port, request);
        (mine.bytes > 0 ? ++answered : ++mine.failed);
    });
}

/// The plainest server that can be written here: reads once, answers the same, ends the connection.
class BareServer : public QTcpServer
{
public:
    explicit BareServer(std::size_t answerBytes)
    {
        const std::string head = "HTTP/1.1 200 OK\r\nContent-Length: ";
        m_answer =
            QByteArray::fromStdString(head + std::to_string(answerBytes) + "\r\nConnection: close\r\n\r\n");
        m_answer.append(std::max<qsizetype>(0, static_cast<qsizetype>(answerBytes) - m_answer.size()), 'x');
        connect(this, &QTcpServer::newConnection, this, [this] {
            while (QTcpSocket *socket = nextPendingConnection()) {
                connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                connect(socket, &QTcpSocket::readyRead, this, [this, socket] {
                    socket->readAll();
                    socket->write(m_answer);
                    socket->disconnectFromHost();
                });
            }
        });
        listen(QHostAddress::AnyIPv4, 0);
    }

private:
    QByteArray m_answer;
};

void report(const char *name, const Measured &remote, const Measured &bare)
{
    std::printf("%-16s %6zu bytes  remote %6.0f/s  bare %6.0f/s  ratio %.2f  failed %d\n", name, remote.bytes,
                remote.perSec, bare.perSec, remote.perSec / bare.perSec, remote.failed);
    std::printf("%16s a tick of %d ms at most %.1f ms late (bare %.1f ms); between two ticks the thread "
                "worked at most %.1f "
                "ms (bare %.1f ms)\n",
                "", tickMs, remote.latestMs, bare.latestMs, remote.busiestMs, bare.busiestMs);
}

quint16 freePort()
{
    QTcpServer probe;
    probe.listen(QHostAddress::AnyIPv4, 0);
    return probe.serverPort();
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir root;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("KELP_SETTINGS_DIR", QFile::encodeName(root.path()));
    qputenv("KELP_GUI_LOG", QFile::encodeName(root.filePath(u"gui.log"_s)));
    qputenv("KELP_PLAYER_BIN", "/bin/true");
    QApplication application(argc, argv);
    applySettingsDirOverride();
    const int seconds = argc > 1 ? std::max(1, QString::fromLocal8Bit(argv[1]).toInt()) : 5;

    const quint16 port = freePort();
    writeUserSetting(settings::remotePort, port);
    writeUserSetting(settings::remoteOn, true);
    WindowOptions options;
    options.asksBeforeClosing = false;
    PlayerGuiWindow window(options);
    window.show();
    for (int row = 0; row < rows; ++row)
        window.appendFile(u"/music/An album of a usual name/%1 - A title of a usual length.flac"_s.arg(row));
    window.restoreRemote();
    const std::string token = window.remoteToken().toStdString();
    if (token.empty()) {
        std::fputs("the phone remote does not listen\n", stderr);
        return 1;
    }
    const std::pair<const char *, std::string> paths[] = {{"/state", "/state?t=" + token},
                                                          {"/library?n=1000", "/library?n=1000&t=" + token}};
    for (const auto &[name, path] : paths) {
        const std::string request = "GET " + path + " HTTP/1.1\r\nHost: x\r\n\r\n";
        const Measured remote = askForSeconds(port, request, seconds);
        BareServer bare(remote.bytes);
        report(name, remote, askForSeconds(bare.serverPort(), request, seconds));
        report("  200 at once", askAtOnce(port, request), askAtOnce(bare.serverPort(), request));
    }
    return 0;
}
