#include "playback/playlist_index.h"

#include "playback/playlist_item.h"

#include <utility>

void PlaylistIndex::add(PlaylistItem &item)
{
    if (item.m_index)
        return;
    item.m_index = this;
    PlaylistItem *&first = m_first[item.m_path];
    item.m_nextOfPath = first;
    if (first)
        first->m_previousOfPath = &item;
    first = &item;
}

void PlaylistIndex::remove(PlaylistItem &item)
{
    if (item.m_index != this)
        return;
    if (item.m_nextOfPath)
        item.m_nextOfPath->m_previousOfPath = item.m_previousOfPath;
    if (item.m_previousOfPath)
        item.m_previousOfPath->m_nextOfPath = item.m_nextOfPath;
    else if (item.m_nextOfPath)
        m_first[item.m_path] = item.m_nextOfPath;
    else
        m_first.remove(item.m_path);
    item.m_index = nullptr;
    item.m_nextOfPath = nullptr;
    item.m_previousOfPath = nullptr;
}

void PlaylistIndex::clear()
{
    for (PlaylistItem *item : std::as_const(m_first)) {
        while (item) {
            item->m_index = nullptr;
            item->m_previousOfPath = nullptr;
            item = std::exchange(item->m_nextOfPath, nullptr);
        }
    }
    m_first.clear();
}

PlaylistItem *PlaylistIndex::nextOfPath(const PlaylistItem &item)
{
    return item.m_nextOfPath;
}

bool PlaylistIndex::isListed(const QString &path) const
{
    for (const PlaylistItem *item = anyOfPath(path); item; item = item->m_nextOfPath) {
        if (item->countsAsListed())
            return true;
    }
    return false;
}
