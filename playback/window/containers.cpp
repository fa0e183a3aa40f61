// Sheets and images, listed by the engine and spread into the playlist.
#include "ui/window/player_gui_window.h"

#include "playback/container_listing.h"
#include "playback/container_overlay.h"
#include "playback/playlist_widget.h"

void PlayerGuiWindow::expandContainerAsync(const QString &path, const std::function<void(int count)> &done)
{
    expandContainer(path, ++m_list.lastAddGroup, [this, done](int count) {
        if (count > 0)
            savePlaylist();
        if (done)
            done(count);
    });
}

void PlayerGuiWindow::expandContainer(const QString &path, quint64 group,
                                      const std::function<void(int count)> &done)
{
    m_list.pendingContainers.insert(path);
    askEngine({listingFlag(path), path}, containerProbeTimeoutMs,
              [this, path, group, done, clearings = m_list.clearings](const PlayerProbeResult &result) {
                  if (clearings != m_list.clearings) {
                      logLine(tr("列表在列出分轨时被清空 ⇒ 不再加入: %1").arg(path));
                      done(0);
                      return;
                  }
                  m_list.pendingContainers.remove(path);
                  done(addListedTracks(path, group, result));
              });
}

int PlayerGuiWindow::addListedTracks(const QString &path, quint64 group, const PlayerProbeResult &result)
{
    ContainerListing listing;
    if (result.rc >= 0)
        listing = isCuePath(path) ? parseCueListing(result.text, path) : parseIsoListing(result.text, path);
    for (const QString &line : listing.logLines)
        logLine(line);
    const int first = m_ui.playlist->count();
    const int added = static_cast<int>(listing.rows.size());
    for (const PlaylistEntry &entry : listing.rows) {
        m_ui.playlist->appendEntry(entry, containerToolTip(entry));
        overlayRow(m_ui.playlist->count() - 1);
    }
    if (added == 0)
        logLine(listingComplaint(path, result.rc, result.text), true);
    else
        recordChange({PlaylistChange::Kind::Insert, {{first, added}}, listing.rows, group});
    refreshNavButtons();
    return added;
}

void PlayerGuiWindow::overlayRow(int row)
{
    const PlaylistEntry entry = m_ui.playlist->entryAt(row);
    OverlayInput input;
    input.container = entry.isStream() ? QString() : entry.cuePath.isEmpty() ? entry.isoPath : entry.cuePath;
    input.track = entry.track;
    input.fallbackTitle = entry.text; // the performer stands in it already
    const std::optional<OverlayResult> shown = overlayContainerRow(input);
    if (!shown)
        return;
    QListWidgetItem *item = m_ui.playlist->item(row);
    item->setText(shown->text);
    item->setToolTip(shown->toolTip);
}
