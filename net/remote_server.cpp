#include "net/remote_server.h"

#include "net/remote_token.h"

#include <QElapsedTimer>
#include <QNetworkInterface>
#include <QNetworkProxy>
#include <QPointer>
#include <QRandomGenerator>
#include <QTcpServer>
#include <QTcpSocket>

namespace {

/// As many are accepted in one go: a crowd must not hold up the window.
constexpr int acceptedAtOnce = 16;
/// The rest waits in the system's queue. A shorter one would cost a crowd's late ones a second each.
constexpr int queuedBySystem = 256;
constexpr int sweepsADeadline = 4;
constexpr std::chrono::milliseconds longestSweep{1000};
/// Until it is tried again to accept, after the system could not.
constexpr std::chrono::milliseconds acceptAgain{250};

std::string_view viewOf(const QByteArray &data)
{
    return {data.constData(), static_cast<std::size_t>(data.size())};
}

/// Hands a socket over before it has read anything.
class Listener final : public QTcpServer
{
public:
    std::function<void(QTcpSocket *)> taken;

protected:
    void incomingConnection(qintptr descriptor) override
    {
        auto *socket = new QTcpSocket(this);
        if (!socket->setSocketDescriptor(descriptor)) {
            delete socket;
            return;
        }
        taken(socket);
        // Counted as waiting, so that this server makes a pause after a handful.
        addPendingConnection(socket);
    }
};

/// What the server counts as waiting has long been taken, and may be gone: it is only taken off the list.
void clearWaitingList(QTcpServer &server)
{
    while (server.hasPendingConnections())
        static_cast<void>(server.nextPendingConnection());
}

} // namespace

RemoteServer::RemoteServer(RemoteHost host, QObject *parent, const RemoteLimits &limits)
    : RemoteListener(parent)
    , m_host(std::move(host))
    , m_limits(limits)
{
    auto listener = std::make_unique<Listener>();
    listener->taken = [this](QTcpSocket *socket) { take(socket); };
    // The application's proxy is for connections to the outside.
    listener->setProxy(QNetworkProxy::NoProxy);
    listener->setMaxPendingConnections(acceptedAtOnce);
    listener->setListenBacklogSize(queuedBySystem);
    // Without a file to spare the system accepts nobody, and the listener would never ask again.
    m_acceptAgain.setSingleShot(true);
    m_acceptAgain.setInterval(acceptAgain);
    connect(listener.get(), &QTcpServer::acceptError, this, [this] { m_acceptAgain.start(); });
    connect(&m_acceptAgain, &QTimer::timeout, listener.get(), &QTcpServer::resumeAccepting);
    m_server = std::move(listener);
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &RemoteServer::takeTurn);
    m_sweep.setInterval(std::min(
        {m_limits.requestWait / sweepsADeadline, m_limits.answerWait / sweepsADeadline, longestSweep}));
    connect(&m_sweep, &QTimer::timeout, this, &RemoteServer::endOverdue);
}

RemoteServer::~RemoteServer()
{
    close();
}

bool RemoteServer::listen(quint16 port)
{
    close();
    if (!m_server->listen(QHostAddress::AnyIPv4, port))
        return false;
    m_token = remoteTokenText(QRandomGenerator::system()->generate());
    return true;
}

void RemoteServer::close()
{
    clearWaitingList(*m_server);
    m_acceptAgain.stop();
    m_server->close();
    m_token.clear();
    m_pending.clear();
    const QList<QTcpSocket *> open = m_open.keys();
    for (QTcpSocket *socket : open)
        socket->abort();
}

bool RemoteServer::isListening() const
{
    return m_server->isListening();
}

quint16 RemoteServer::port() const
{
    return m_server->serverPort();
}

QString RemoteServer::errorText() const
{
    return m_server->errorString();
}

QStringList RemoteServer::addresses() const
{
    QStringList addresses;
    for (const QNetworkInterface &interface : QNetworkInterface::allInterfaces()) {
        for (const QNetworkAddressEntry &entry : interface.addressEntries()) {
            const QHostAddress address = entry.ip();
            if (address.protocol() == QAbstractSocket::IPv4Protocol && !address.isLoopback())
                addresses.append(address.toString());
        }
    }
    return addresses;
}

void RemoteServer::takeTurn()
{
    m_spent = {};
    clearWaitingList(*m_server);
    // A command may end in a dialog, whose loop takes turns of its own: nothing is held across an answer.
    const QPointer<RemoteServer> self(this);
    while (self && !m_pending.empty() && m_spent < m_limits.turn) {
        const Pending next = std::move(m_pending.front());
        m_pending.pop_front();
        answer(next.socket, next.data);
    }
    if (self && !m_pending.empty())
        m_turn.start();
}

void RemoteServer::take(QTcpSocket *socket)
{
    if (m_open.size() >= m_limits.mostConnections)
        makeRoom();
    m_open.insert(socket, {QDeadlineTimer(m_limits.requestWait)});
    if (!m_sweep.isActive())
        m_sweep.start();
    socket->setReadBufferSize(m_limits.mostRequestBytes);
    connect(socket, &QTcpSocket::disconnected, this, [this, socket] { forget(socket); });
    connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    connect(socket, &QTcpSocket::readyRead, this, [this, socket] { handleRemoteRequest(socket); });
    m_turn.start();
}

void RemoteServer::makeRoom()
{
    // Who has sent nothing goes first, and of these who has waited longest.
    const auto rank = [](const Connection &connection) {
        return std::pair(!connection.waiting, connection.end.deadlineNSecs());
    };
    auto oldest = m_open.cbegin();
    for (auto each = m_open.cbegin(); each != m_open.cend(); ++each)
        if (rank(each.value()) < rank(oldest.value()))
            oldest = each;
    oldest.key()->abort();
}

void RemoteServer::endOverdue()
{
    QList<QTcpSocket *> overdue;
    for (auto each = m_open.cbegin(); each != m_open.cend(); ++each)
        if (each.value().end.hasExpired())
            overdue.append(each.key());
    for (QTcpSocket *socket : overdue)
        socket->abort();
}

void RemoteServer::forget(QTcpSocket *socket)
{
    m_open.remove(socket);
    if (m_open.isEmpty())
        m_sweep.stop();
    std::erase_if(m_pending, [socket](const Pending &pending) { return pending.socket == socket; });
}

void RemoteServer::handleRemoteRequest(QTcpSocket *socket)
{
    const QByteArray data = socket->readAll();
    // One request a connection: what comes behind it is read so that the connection can end, and is dropped.
    const auto found = m_open.find(socket);
    if (found == m_open.end() || !found->waiting)
        return;
    // A request in more than one piece is lost. This keeps a connection's memory at one read, and a browser
    // on the same network sends one segment.
    if (!isRemoteRequest(viewOf(data)))
        return;
    *found = {QDeadlineTimer(m_limits.answerWait), false};
    m_turn.start();
    if (m_pending.empty() && m_spent < m_limits.turn)
        answer(socket, data);
    else
        m_pending.push_back({socket, data});
}

void RemoteServer::answer(QTcpSocket *socket, const QByteArray &data)
{
    QElapsedTimer clock;
    clock.start();
    const QPointer<RemoteServer> self(this);
    const QPointer<QTcpSocket> alive(socket);
    const std::string token = m_token;
    const std::string response = answerRemoteRequest(viewOf(data), token, m_host);
    if (alive && alive->state() == QTcpSocket::ConnectedState) {
        alive->write(response.data(), static_cast<qint64>(response.size()));
        // At once: a client that has closed its side is otherwise taken for gone before it is answered.
        alive->flush();
        alive->disconnectFromHost();
    }
    if (self)
        m_spent += std::chrono::nanoseconds(clock.nsecsElapsed());
}
