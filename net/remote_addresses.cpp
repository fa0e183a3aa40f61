#include "net/remote_addresses.h"

QStringList remoteUrls(const QStringList &addresses, quint16 port, const QString &token)
{
    QStringList urls;
    for (const QString &address : addresses)
        urls.append(QStringLiteral("http://%1:%2/?t=%3").arg(address, QString::number(port), token));
    return urls;
}
