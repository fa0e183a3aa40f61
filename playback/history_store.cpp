#include "playback/history_store.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QSaveFile>
#include <optional>

namespace {

struct Snapshot
{
    PlaylistHistory history;
    QStringList savedRows;
};

HistoryStore::Loaded readHistory(const QString &path, const QStringList &savedRows)
{
    QFile file(path);
    std::optional<StoredHistory> stored;
    if (file.size() <= mostHistoryFileBytes && file.open(QIODevice::ReadOnly))
        stored = parseHistory(file.readAll());
    if (!stored)
        return {{}, HistoryStore::tr("播放列表的撤销记录已损坏, 不能用 ⇒ 从空记录开始: %1").arg(path)};
    if (stored->fingerprint != listFingerprint(savedRows))
        return {{}, HistoryStore::tr("播放列表的撤销记录和保存的列表对不上 ⇒ 从空记录开始: %1").arg(path)};
    return {stored->history, {}};
}

QString writeHistory(const QString &path, const Snapshot &snapshot)
{
    QDir().mkpath(QFileInfo(path).path());
    const QByteArray bytes = historyBytes({snapshot.history, listFingerprint(snapshot.savedRows)});
    QSaveFile file(path);
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return {};
    return HistoryStore::tr("写不了播放列表的撤销记录, 重启后不能撤销: %1 (%2)")
        .arg(path, file.errorString());
}

} // namespace

struct HistoryStore::Wanted
{
    QMutex mutex;
    std::optional<Snapshot> snapshot; ///< guarded by the mutex
};

HistoryStore::HistoryStore(const QString &path, QObject *parent)
    : QObject(parent)
    , m_path(path)
    , m_wanted(std::make_shared<Wanted>())
{
    m_pool.setMaxThreadCount(1);
}

HistoryStore::~HistoryStore()
{
    m_pool.waitForDone();
}

void HistoryStore::load(const QStringList &savedRows, std::function<void(const Loaded &)> done)
{
    if (!QFile::exists(m_path)) {
        done({});
        return;
    }
    m_pool.start([this, path = m_path, savedRows, done = std::move(done)] {
        Loaded loaded = readHistory(path, savedRows);
        QMetaObject::invokeMethod(
            this, [done, loaded = std::move(loaded)] { done(loaded); }, Qt::QueuedConnection);
    });
}

void HistoryStore::save(const PlaylistHistory &history, const QStringList &savedRows)
{
    {
        const QMutexLocker lock(&m_wanted->mutex);
        m_wanted->snapshot = Snapshot{history, savedRows};
    }
    m_pool.start([this, path = m_path, wanted = m_wanted] {
        std::optional<Snapshot> snapshot;
        {
            const QMutexLocker lock(&wanted->mutex);
            snapshot = std::exchange(wanted->snapshot, std::nullopt);
        }
        if (!snapshot)
            return;
        const QString complaint = writeHistory(path, *snapshot);
        if (complaint.isEmpty())
            return;
        QMetaObject::invokeMethod(
            this,
            [this, complaint] {
                if (onFailure)
                    onFailure(complaint);
            },
            Qt::QueuedConnection);
    });
}
