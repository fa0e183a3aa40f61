/// \file
/// The listener of the phone remote, as the window knows it.
#pragma once

#include "net/remote_answer.h"

#include <QObject>
#include <QStringList>

/// Lives on one thread (the GUI thread), does everything there, and calls its host there.
class RemoteListener : public QObject
{
public:
    using QObject::QObject;

    /// Listens on every IPv4 address with a token made anew. \param port 0: any free one
    /// \return false with errorText() set; there is then no token
    virtual bool listen(quint16 port) = 0;
    /// Stops listening, ends every connection and forgets the token.
    virtual void close() = 0;
    virtual bool isListening() const = 0;
    virtual quint16 port() const = 0;
    /// In memory only. Empty while not listening.
    virtual QString token() const = 0;
    virtual QString errorText() const = 0;
    /// This machine's own IPv4 addresses, dotted, without the loopback's.
    virtual QStringList addresses() const = 0;
};

/// A listener out of the library that holds it: it brings the toolkit's whole network with it, and a listener
/// who never switches the remote on need not wait for that at each start. GUI thread.
/// \param host stays with the listener
/// \param error a sentence where the library cannot be loaded
/// \return null with error set. The parent's otherwise.
RemoteListener *makeRemoteListener(const RemoteHost &host, QObject *parent, QString &error);
