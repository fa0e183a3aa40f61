#include "ui/cover_image.h"

#include <QFile>
#include <QImageReader>
#include <algorithm>
#include <array>

namespace {

constexpr std::array formats = {"jpeg", "png", "webp", "bmp", "gif"};
/// What one entry costs beside its pixels.
constexpr qint64 entryBytes = 256;

} // namespace

QImage readCoverImage(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.size() > mostCoverFileBytes)
        return {};
    QImageReader reader(&file);
    reader.setDecideFormatFromContent(true);
    reader.setAutoTransform(true);
    const QByteArray format = reader.format();
    if (std::ranges::none_of(formats, [&](const char *known) { return format == known; }))
        return {};
    const QSize size = reader.size();
    if (size.isEmpty() || static_cast<qint64>(size.width()) * size.height() > mostCoverPixels)
        return {};
    if (std::max(size.width(), size.height()) > largestCoverSide)
        reader.setScaledSize(
            size.scaled(largestCoverSide, largestCoverSide, Qt::KeepAspectRatio).expandedTo(QSize(1, 1)));
    return reader.read();
}

qint64 CoverCache::costOf(const Entry &entry)
{
    return entry.image.sizeInBytes() + entryBytes;
}

const QImage *CoverCache::find(const QString &key)
{
    const auto found = std::ranges::find(m_entries, key, &Entry::key);
    if (found == m_entries.end())
        return nullptr;
    m_entries.move(found - m_entries.begin(), 0);
    return &m_entries.first().image;
}

void CoverCache::insert(const QString &key, const QImage &image)
{
    const auto same = std::ranges::find(m_entries, key, &Entry::key);
    if (same != m_entries.end()) {
        m_bytes -= costOf(*same);
        m_entries.erase(same);
    }
    m_entries.prepend({key, image});
    m_bytes += costOf(m_entries.first());
    // The newest stays, however large it is: it is about to be shown.
    while (m_bytes > m_mostBytes && m_entries.size() > 1)
        m_bytes -= costOf(m_entries.takeLast());
}
