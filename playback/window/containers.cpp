// Sheets and images, listed by the engine and spread into the playlist.
#include "ui/window/player_gui_window.h"

#include "playback/container_listing.h"
#include "playback/playlist_widget.h"

#include <QFileInfo>

void PlayerGuiWindow::addFiles(const QStringList &paths)
{
    for (const QString &path : paths) {
        const QString absolute = QFileInfo(path).absoluteFilePath();
        if (!isContainerPath(absolute))
            appendFile(absolute);
        else if (!m_pendingContainers.contains(absolute) && m_ui.playlist->rowOfPath(absolute) < 0)
            expandContainerAsync(absolute, {});
    }
}

void PlayerGuiWindow::expandContainerAsync(const QString &path, const std::function<void(int count)> &done)
{
    m_pendingContainers.insert(path);
    askEngine({listingFlag(path), path}, containerProbeTimeoutMs,
              [this, path, done](const PlayerProbeResult &result) {
                  m_pendingContainers.remove(path);
                  const int count = addListedTracks(path, result);
                  if (done)
                      done(count);
              });
}

int PlayerGuiWindow::addListedTracks(const QString &path, const PlayerProbeResult &result)
{
    ContainerListing listing;
    if (result.rc >= 0)
        listing = isCuePath(path) ? parseCueListing(result.text, path) : parseIsoListing(result.text, path);
    for (const QString &line : listing.logLines)
        logLine(line);
    for (const PlaylistEntry &entry : listing.rows)
        m_ui.playlist->appendEntry(entry, containerToolTip(entry));
    if (listing.rows.isEmpty())
        logLine(listingComplaint(path, result.rc, result.text), true);
    refreshNavButtons();
    return static_cast<int>(listing.rows.size());
}
