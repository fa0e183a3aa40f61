/// \file
/// The few tags that lists and displays show, kept once read.
#pragma once

#include <QHash>
#include <QString>

/// Texts without blanks at their ends.
struct TagSummary
{
    QString title;
    QString artist; ///< the absolute path of the file's folder where the tag is empty, so that albums group
    QString album;
    QString composer;
    QString work;
    QString movement;

    bool operator==(const TagSummary &) const = default;
};

/// What has been read stays until it is dropped: a file's time is not looked at. GUI thread.
class TagSummaryCache
{
public:
    /// Reads the file on the first call for a path; a file that cannot be read is kept as such too.
    TagSummary tagSummaryFor(const QString &path);
    /// What was read of a path before, or null; reads nothing. Valid until the next change of the cache.
    const TagSummary *kept(const QString &path) const
    {
        const auto found = m_summaries.constFind(path);
        return found == m_summaries.cend() ? nullptr : &*found;
    }
    /// To be called after the tags of a file were written.
    void drop(const QString &path) { m_summaries.remove(path); }
    void clear() { m_summaries.clear(); }
    qsizetype size() const { return m_summaries.size(); }

private:
    QHash<QString, TagSummary> m_summaries;
};
