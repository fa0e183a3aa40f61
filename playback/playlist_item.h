/// \file
/// A row of the playlist: the one store of its values, and lighter than a plain list item.
#pragma once

#include "playback/playlist_entry.h"

#include <QListWidgetItem>
#include <memory>

class PlaylistIndex;

/// Answers every role of playlist_roles.h, and changes by setData() as any item does. What most rows have in
/// common is not stored: a text that is the file's name, a tool tip that is the path, fonts and colours. GUI
/// thread.
class PlaylistItem final : public QListWidgetItem
{
public:
    static constexpr int kind = UserType + 1;

    /// \param entry   a row without a text takes the file's name
    /// \param toolTip empty: the path
    explicit PlaylistItem(const PlaylistEntry &entry, const QString &toolTip = {});
    ~PlaylistItem() override;

    QListWidgetItem *clone() const override;
    QVariant data(int role) const override;
    void setData(int role, const QVariant &value) override;

    const QString &path() const { return m_path; }
    QString rowText() const;
    PlaylistEntry entry() const;
    /// The row's text for the settings.
    QString saved() const;
    /// Whether a plain file of this path counts as listed by this row: the sheet's field, taken as a number,
    /// is 0. That holds for every row but one whose sheet's name is a number.
    bool countsAsListed() const;

    /// Bold and amber, or plain. The list repaints the row itself.
    void setHighlighted(bool highlighted) { m_highlighted = highlighted; }

private:
    friend class PlaylistIndex;

    struct Container
    {
        QString cuePath;
        QString isoPath;
        int track = 0;
        double startSec = 0.;
        double endSec = 0.;
    };
    Container &container();
    void setPath(const QString &path);
    void setText(const QString &text);
    void tellChanged(int role);

    QString m_text; ///< null: the file's name
    QString m_path;
    QString m_toolTip;       ///< null: the path
    mutable QString m_saved; ///< saved(), once asked for; the settings hold the same text and share it
    std::unique_ptr<Container> m_container; ///< null for a plain file
    PlaylistIndex *m_index = nullptr;       ///< of the list that holds the row
    PlaylistItem *m_nextOfPath = nullptr;   ///< rows of one path are chained
    PlaylistItem *m_previousOfPath = nullptr;
    bool m_highlighted = false;
};
