/// \file
/// Lines on their way to the log pane.
#pragma once

#include <QList>
#include <QString>

/// Collects lines until the event loop comes round, so that a burst of them costs one repaint. GUI thread.
class LogBatch
{
public:
    struct Entry
    {
        QString text;
        bool isError = false;
    };

    /// \return whether a flush has to be posted to the event loop: true for the first line after a take only
    [[nodiscard]] bool add(const QString &text, bool isError);
    /// The lines in the order in which they came. Lines added from now on need a new flush.
    QList<Entry> take();

private:
    QList<Entry> m_entries;
    bool m_flushPosted = false;
};

/// An error line as the pane's rich text; all of the line's own characters are shown as they are.
QString errorLineHtml(const QString &text);
