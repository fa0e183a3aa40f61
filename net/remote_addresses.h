/// \file
/// The addresses under which a phone finds this machine.
#pragma once

#include <QStringList>

/// "http://ADDRESS:PORT/?t=TOKEN" for each address, in their order.
/// \param addresses IPv4, dotted
QStringList remoteUrls(const QStringList &addresses, quint16 port, const QString &token);
