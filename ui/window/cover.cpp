// The cover of the track that plays.
#include "ui/window/player_gui_window.h"

#include "playback/playlist_widget.h"
#include "ui/cover_store.h"

#include <QTimer>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::refreshCover()
{
    if (!m_cover.store)
        m_cover.store = new CoverStore(
            [this](const QStringList &args, int timeoutMs, ProbeWorker::Deliver deliver) {
                askEngine(args, timeoutMs, std::move(deliver));
            },
            this);
    const int generation = ++m_cover.generation;
    // Behind what is queued: neither the first frame nor the start of a track waits for a picture.
    QTimer::singleShot(0, this, [this, generation] {
        if (generation != m_cover.generation)
            return;
        const PlaylistEntry entry = m_ui.playlist->entryAt(m_start.playingRow);
        CoverWish wish;
        if (!entry.isStream()) {
            wish.path = !entry.isoPath.isEmpty()   ? entry.isoPath
                        : !entry.cuePath.isEmpty() ? entry.cuePath
                                                   : entry.path;
            wish.track = entry.track;
        }
        m_cover.store->load(wish, [this, generation](const QImage &image) {
            if (generation == m_cover.generation)
                showCover(image);
        });
    });
}

void PlayerGuiWindow::showCover(const QImage &image)
{
    m_cover.image = image;
}
