/// \file
/// Pictures of a cover, read with bounds.
#pragma once

#include <QImage>
#include <QList>
#include <QString>

/// More is not decoded: a file of some kilobytes can stand for gigabytes of pixels.
inline constexpr qint64 mostCoverPixels = 50'000'000;
inline constexpr qint64 mostCoverFileBytes = 32 * 1024 * 1024;
/// Larger covers are scaled down while they are read: no place on the screen shows more.
inline constexpr int largestCoverSide = 1024;

/// Reads a JPEG, PNG, WebP, BMP or GIF, by its content. Null for any other, for one that is too large and for
/// a damaged one. Any thread; takes as long as the decoding.
QImage readCoverImage(const QString &path);

/// Covers by key, the one that was wanted longest ago giving way. A null image is a cover that was looked for
/// and not found, and is worth remembering too.
class CoverCache
{
public:
    explicit CoverCache(qint64 mostBytes)
        : m_mostBytes(mostBytes)
    {
    }
    /// Null when the key is not known.
    const QImage *find(const QString &key);
    void insert(const QString &key, const QImage &image);
    qint64 bytes() const { return m_bytes; }
    qsizetype count() const { return m_entries.size(); }

private:
    struct Entry
    {
        QString key;
        QImage image;
    };
    static qint64 costOf(const Entry &entry);
    const qint64 m_mostBytes;
    qint64 m_bytes = 0;
    QList<Entry> m_entries; ///< newest first
};
