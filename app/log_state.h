/// \file
/// The window's memory for its log.
#pragma once

#include "app/log_batch.h"
#include "ui/log_pane.h"

#include <QElapsedTimer>
#include <QString>
#include <mutex>
#include <optional>

/// What the GUI thread is doing now, for the stall report. Any thread.
class CurrentStage
{
public:
    QString exchange(const QString &label)
    {
        const std::lock_guard lock(m_mutex);
        QString former = m_label;
        m_label = label;
        return former;
    }
    QString label() const
    {
        const std::lock_guard lock(m_mutex);
        return m_label;
    }

private:
    mutable std::mutex m_mutex; ///< guards m_label
    QString m_label;
};

struct LogState
{
    LogBatch<LogEntry> batch; ///< waiting for one common repaint of the pane
    QList<LogEntry> unread;   ///< from before the pane was built, the newest of them
    QElapsedTimer sinceFlush; ///< invalid before the first repaint of the pane
    CurrentStage stage;
    std::optional<qint64> readyAfterMs; ///< from the process's start to the window being shown
};
