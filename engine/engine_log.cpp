#include "engine/engine_log.h"

#include <QDir>
#include <QtGlobal>

using namespace Qt::StringLiterals;

namespace {

constexpr char variable[] = "KELP_ENGINE_LOG";

QString lastingDirectory()
{
    const QString path = QDir(QDir::tempPath()).filePath(u"kelp-logs"_s);
    QDir().mkpath(path);
    return path;
}

QString directoryOfThisRun(std::unique_ptr<QTemporaryDir> &holder)
{
    holder.reset(); // an earlier directory goes with all it holds
    holder = std::make_unique<QTemporaryDir>(QDir::tempPath() + u"/kelp-log-XXXXXX"_s);
    if (holder->isValid())
        return holder->path();
    holder.reset();
    return lastingDirectory();
}

} // namespace

QString prepareEngineLog(const QString &stem, std::unique_ptr<QTemporaryDir> *holder, bool keepEngineLog)
{
    const QByteArray exported = qgetenv(variable);
    if (!exported.isEmpty())
        return QString::fromLocal8Bit(exported);
    const QString directory =
        keepEngineLog || holder == nullptr ? lastingDirectory() : directoryOfThisRun(*holder);
    const QString path = directory + u'/' + stem + u".log"_s;
    qputenv(variable, path.toLocal8Bit());
    return path;
}
