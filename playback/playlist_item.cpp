#include "playback/playlist_item.h"

#include "playback/playlist_change.h"
#include "playback/playlist_index.h"
#include "playback/playlist_roles.h"
#include "playback/saved_rows.h"

#include <QBrush>
#include <QFont>
#include <QListWidget>

namespace {

constexpr QColor playingColour(245, 166, 35);

/// The view's own font in one of the two weights that rows have.
QFont rowFont(const QListWidget *list, bool highlighted)
{
    QFont font = list ? list->font() : QFont();
    font.setWeight(highlighted ? QFont::Bold : QFont::Normal);
    return font;
}

} // namespace

PlaylistItem::PlaylistItem(const PlaylistEntry &entry, const QString &toolTip)
    : QListWidgetItem(nullptr, kind)
    , m_path(entry.path)
    , m_toolTip(toolTip == entry.path ? QString() : toolTip)
{
    // Rows are dropped between rows; a row dropped on another would take its place.
    setFlags(flags() & ~Qt::ItemIsDropEnabled);
    if (!entry.text.isEmpty())
        setText(entry.text);
    if (!entry.isContainerTrack() && entry.startSec == 0. && entry.endSec == 0.)
        return;
    m_container = std::make_unique<Container>(
        Container{entry.cuePath, entry.isoPath, entry.track, entry.startSec, entry.endSec});
}

PlaylistItem::~PlaylistItem()
{
    if (m_index)
        m_index->remove(*this);
}

QListWidgetItem *PlaylistItem::clone() const
{
    return new PlaylistItem(entry(), m_toolTip);
}

QVariant PlaylistItem::data(int role) const
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        return rowText();
    case Qt::ToolTipRole:
        return m_toolTip.isEmpty() ? m_path : m_toolTip;
    case Qt::FontRole:
        return rowFont(listWidget(), m_highlighted);
    case Qt::ForegroundRole:
        return m_highlighted ? QVariant(QBrush(playingColour)) : QVariant();
    case playlist_role::path:
        return m_path;
    default:
        break;
    }
    const bool own = role >= playlist_role::cuePath && role <= playlist_role::isoPath;
    if (!own)
        return QListWidgetItem::data(role);
    if (!m_container)
        return {};
    switch (role) {
    case playlist_role::cuePath:
        return m_container->cuePath;
    case playlist_role::track:
        return m_container->track;
    case playlist_role::startSec:
        return m_container->startSec;
    case playlist_role::endSec:
        return m_container->endSec;
    default:
        return m_container->isoPath.isEmpty() ? QVariant() : QVariant(m_container->isoPath);
    }
}

void PlaylistItem::setData(int role, const QVariant &value)
{
    switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
        setText(value.toString());
        break;
    case Qt::ToolTipRole:
        m_toolTip = value.toString();
        break;
    case playlist_role::path:
        setPath(value.toString());
        break;
    case playlist_role::cuePath:
        container().cuePath = value.toString();
        break;
    case playlist_role::track:
        container().track = value.toInt();
        break;
    case playlist_role::startSec:
        container().startSec = value.toDouble();
        break;
    case playlist_role::endSec:
        container().endSec = value.toDouble();
        break;
    case playlist_role::isoPath:
        container().isoPath = value.toString();
        break;
    default:
        QListWidgetItem::setData(role, value);
        return;
    }
    m_saved = QString();
    tellChanged(role);
}

QString PlaylistItem::rowText() const
{
    return m_text.isNull() ? fileNameOf(m_path).toString() : m_text;
}

PlaylistEntry PlaylistItem::entry() const
{
    PlaylistEntry entry;
    entry.text = rowText();
    entry.path = m_path;
    if (!m_container)
        return entry;
    entry.cuePath = m_container->cuePath;
    entry.isoPath = m_container->isoPath;
    entry.track = m_container->track;
    entry.startSec = m_container->startSec;
    entry.endSec = m_container->endSec;
    return entry;
}

QString PlaylistItem::saved() const
{
    if (m_saved.isNull())
        m_saved = m_container ? savedRow(entry())
                              : savedFileRow(m_text.isNull() ? fileNameOf(m_path) : m_text, m_path);
    return m_saved;
}

bool PlaylistItem::countsAsListed() const
{
    return !m_container || m_container->cuePath.toInt() == 0;
}

PlaylistItem::Container &PlaylistItem::container()
{
    if (!m_container)
        m_container = std::make_unique<Container>();
    return *m_container;
}

void PlaylistItem::setPath(const QString &path)
{
    const QString text = rowText();
    PlaylistIndex *index = m_index;
    if (index)
        index->remove(*this);
    m_path = path;
    setText(text);
    if (index)
        index->add(*this);
}

void PlaylistItem::setText(const QString &text)
{
    m_text = text == fileNameOf(m_path) ? QString() : text;
    // Null stands for the file's name, so a text that is empty on purpose must not be null.
    if (m_text.isNull() && text.isEmpty() && !fileNameOf(m_path).isEmpty())
        m_text = QLatin1StringView("");
}

void PlaylistItem::tellChanged(int role)
{
    QListWidget *list = listWidget();
    if (!list)
        return;
    const QModelIndex index = list->indexFromItem(this);
    Q_EMIT list->model()->dataChanged(index, index, {role});
}
