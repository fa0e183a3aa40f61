/// \file
/// The listener of the phone remote, with the toolkit's sockets.
#pragma once

#include "net/remote_listener.h"

#include <QDeadlineTimer>
#include <QHash>
#include <QTimer>

#include <chrono>
#include <deque>
#include <memory>

class QTcpServer;
class QTcpSocket;

/// What a connection may cost. The values are far beyond what a browser on the same network needs.
struct RemoteLimits
{
    /// Beyond it the connection that has waited longest without a request makes room.
    int mostConnections = 256;
    /// What is read and kept of a request, bytes.
    qint64 mostRequestBytes = 16 * 1024;
    /// From being accepted to the request. Browsers open spare connections and open others when those end.
    std::chrono::milliseconds requestWait{10'000};
    /// From the request to the last byte of the answer.
    std::chrono::milliseconds answerWait{30'000};
    /// How long requests are answered before the other events of the thread get their turn.
    std::chrono::milliseconds turn{4};
};

/// One request a connection, no buffering across reads.
class RemoteServer final : public RemoteListener
{
    Q_OBJECT

public:
    explicit RemoteServer(RemoteHost host, QObject *parent = nullptr, const RemoteLimits &limits = {});
    ~RemoteServer() override;

    bool listen(quint16 port) override;
    void close() override;
    bool isListening() const override;
    quint16 port() const override;
    QString token() const override { return QString::fromStdString(m_token); }
    QString errorText() const override;
    QStringList addresses() const override;
    qsizetype connectionCount() const { return m_open.size(); }

private:
    struct Connection
    {
        QDeadlineTimer end;  ///< it is ended then, whatever it does
        bool waiting = true; ///< has sent no request yet
    };
    struct Pending
    {
        QTcpSocket *socket;
        QByteArray data;
    };

    void takeTurn();
    void take(QTcpSocket *socket);
    void makeRoom();
    void endOverdue();
    void handleRemoteRequest(QTcpSocket *socket);
    void answer(QTcpSocket *socket, const QByteArray &data);
    void forget(QTcpSocket *socket);

    const RemoteHost m_host;
    const RemoteLimits m_limits;
    std::unique_ptr<QTcpServer> m_server;
    QTimer m_turn;                       ///< fires when the thread's other events have had theirs
    std::chrono::nanoseconds m_spent{0}; ///< on answers, since the last turn
    QTimer m_acceptAgain;                ///< runs after the system could not accept
    QTimer m_sweep;                      ///< one for all deadlines; runs while a connection is open
    std::string m_token;
    QHash<QTcpSocket *, Connection> m_open; ///< children of m_server
    std::deque<Pending> m_pending;          ///< read and not yet answered
};
