/// \file
/// Covers of tracks, through the engine's probe.
#pragma once

#include "engine/probe_worker.h"
#include "ui/cover_image.h"

#include <QObject>
#include <QTemporaryDir>
#include <QThreadPool>

/// Which cover is wanted.
struct CoverWish
{
    QString path;  ///< an audio file, a sheet or an image
    int track = 0; ///< of a sheet or an image; below 1 for none

    bool operator==(const CoverWish &) const = default;
};

/// The file's state is part of the key: a changed file, or a picture laid beside it, is looked at anew.
QString coverKey(const CoverWish &wish);

/// Lets the engine write a track's picture into a private folder, reads it on a thread of its own, and keeps
/// what was read. GUI thread.
class CoverStore final : public QObject
{
    Q_OBJECT

public:
    using Ask = std::function<void(const QStringList &args, int timeoutMs, ProbeWorker::Deliver deliver)>;
    using Deliver = std::function<void(const QImage &image)>;

    static constexpr qint64 cacheBytes = 32 * 1024 * 1024;

    /// \param ask runs a probe elsewhere and delivers its answer on this thread
    explicit CoverStore(Ask ask, QObject *parent = nullptr);
    /// Drops what has not been read, and waits for the one picture that is being read.
    ~CoverStore() override;
    /// Delivers the cover, or a null image when there is none: at once from the cache, else later. Not after
    /// this object is gone.
    void load(const CoverWish &wish, Deliver deliver);

private:
    void read(const QString &key, const QString &file, Deliver deliver);

    Ask m_ask;
    QTemporaryDir m_folder;
    CoverCache m_cache{cacheBytes};
    int m_files = 0;
    QThreadPool m_pool; ///< of one thread; last, so that it ends first
};
