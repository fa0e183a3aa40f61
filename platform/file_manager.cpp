#include "platform/file_manager.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QUrl>

using namespace Qt::StringLiterals;

void showInFileManager(const QStringList &paths, QObject *context, std::function<void()> refused)
{
    QStringList uris;
    for (const QString &path : paths)
        uris.append(QString::fromLatin1(QUrl::fromLocalFile(path).toEncoded()));
    QDBusMessage call =
        QDBusMessage::createMethodCall(u"org.freedesktop.FileManager1"_s, u"/org/freedesktop/FileManager1"_s,
                                       u"org.freedesktop.FileManager1"_s, u"ShowItems"_s);
    call << uris << QString();
    auto *watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(call), context);
    QObject::connect(watcher, &QDBusPendingCallWatcher::finished, context,
                     [watcher, refused = std::move(refused)] {
                         watcher->deleteLater();
                         if (watcher->isError() && refused)
                             refused();
                     });
}
