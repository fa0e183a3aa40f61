/// \file
/// The playlist's history on disk, read and written beside the GUI thread.
#pragma once

#include "playback/playlist_history_file.h"

#include <QObject>
#include <QThreadPool>
#include <functional>
#include <memory>

/// One file, one thread for it. Calls come from the GUI thread, and so do the answers; the destructor waits
/// for what is still being written.
class HistoryStore final : public QObject
{
    Q_OBJECT

public:
    struct Loaded
    {
        PlaylistHistory history; ///< empty where there was none for this list
        QString complaint;       ///< what was wrong, translated; empty when nothing was
    };

    explicit HistoryStore(const QString &path, QObject *parent = nullptr);
    ~HistoryStore() override;

    /// Reads the history that belongs to a saved list. Answers at once where there is no file.
    void load(const QStringList &savedRows, std::function<void(const Loaded &)> done);
    /// Writes a history; of several that wait only the last is written. The old file stays whole until the
    /// new one is complete.
    void save(const PlaylistHistory &history, const QStringList &savedRows);
    /// Called with a sentence when the file cannot be written.
    std::function<void(const QString &complaint)> onFailure;

    /// Blocks until nothing is left to read or write.
    void waitForDone() { m_pool.waitForDone(); }

private:
    struct Wanted; // the history that waits to be written

    const QString m_path;
    std::shared_ptr<Wanted> m_wanted;
    QThreadPool m_pool; ///< of one thread; last, so that it ends first
};
