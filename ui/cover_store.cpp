#include "ui/cover_store.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QPointer>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr int probeLimitMs = 10000;

} // namespace

QString coverKey(const CoverWish &wish)
{
    const QFileInfo file(wish.path);
    const QFileInfo folder(file.absolutePath());
    const QStringList parts = {file.absoluteFilePath(), QString::number(wish.track),
                               QString::number(file.lastModified().toMSecsSinceEpoch()),
                               QString::number(file.size()),
                               QString::number(folder.lastModified().toMSecsSinceEpoch())};
    return parts.join(u'\n');
}

CoverStore::CoverStore(Ask ask, QObject *parent)
    : QObject(parent)
    , m_ask(std::move(ask))
{
    m_pool.setMaxThreadCount(1);
}

CoverStore::~CoverStore()
{
    m_pool.clear();
    m_pool.waitForDone();
}

void CoverStore::load(const CoverWish &wish, Deliver deliver)
{
    const QString key = coverKey(wish);
    if (const QImage *known = m_cache.find(key))
        return deliver(*known);
    if (wish.path.isEmpty() || !m_folder.isValid())
        return deliver({});
    const QString file = m_folder.filePath(u"cover-%1"_s.arg(++m_files));
    QStringList args = {u"-cover"_s, QFileInfo(wish.path).absoluteFilePath(), u"-out"_s, file};
    if (wish.track > 0)
        args << u"-track"_s << QString::number(wish.track);
    const QPointer<CoverStore> self(this);
    m_ask(args, probeLimitMs,
          [self, key, file, deliver = std::move(deliver)](const PlayerProbeResult &result) {
              if (!self)
                  return;
              // A probe that could not be asked is no answer: the next wish asks again.
              if (result.rc == 0)
                  return self->read(key, file, deliver);
              if (result.rc > 0)
                  self->m_cache.insert(key, {});
              deliver({});
          });
}

void CoverStore::read(const QString &key, const QString &file, Deliver deliver)
{
    // No future with a continuation here: at the end of its work it looks at its context from the pool's
    // thread, where the context may be going.
    m_pool.start([this, key, file, deliver = std::move(deliver)]() mutable {
        QImage image = readCoverImage(file);
        QFile::remove(file);
        QMetaObject::invokeMethod(
            this,
            [this, key, image = std::move(image), deliver = std::move(deliver)] {
                m_cache.insert(key, image);
                deliver(image);
            },
            Qt::QueuedConnection);
    });
}
