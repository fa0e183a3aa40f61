// How files and folders enter the playlist.
#include "ui/window/player_gui_window.h"

#include "playback/add_plan.h"
#include "playback/playlist_widget.h"

#include <QDragEnterEvent>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QFileInfo>
#include <QMimeData>

using namespace Qt::StringLiterals;

/// One call of addPaths, alive until the last of its containers has answered.
struct AddOperation
{
    bool bulk = false;
    QElapsedTimer clock; ///< runs in bulk mode
    int added = 0;
    qsizetype remaining = 0; ///< containers whose listing is still out
};

namespace {

constexpr qint64 nanosecondsPerMs = 1000000;

QList<PlaylistEntry> fileEntries(const QStringList &paths)
{
    QList<PlaylistEntry> entries;
    entries.reserve(paths.size());
    for (const QString &path : paths) {
        PlaylistEntry entry; // its text is the file's name
        entry.path = path;
        entries.append(entry);
    }
    return entries;
}

} // namespace

int PlayerGuiWindow::appendFile(const QString &path)
{
    const int row = m_ui.playlist->count();
    const QList<PlaylistEntry> entries = fileEntries({path});
    m_ui.playlist->appendEntries(entries);
    recordChange({PlaylistChange::Kind::Insert, {{row, 1}}, entries, 0});
    savePlaylist();
    refreshNavButtons();
    return row;
}

void PlayerGuiWindow::addPaths(const QStringList &paths, const std::function<void()> &done)
{
    const CollectedPaths collected = collectPaths(paths);
    if (collected.noDecoder > 0)
        logLine(tr("跳过 %1 个音频文件: 本播放器没有它们的解码器 (MP3/AAC/OGG)").arg(collected.noDecoder));
    if (collected.badNames > 0)
        logLine(tr("跳过 %1 个文件: 文件名不是合法的 UTF-8, 打不开").arg(collected.badNames), true);

    auto adding = std::make_shared<AddOperation>();
    adding->bulk = collected.paths.size() > mostPathsLaidOutSingly;
    if (adding->bulk) {
        m_ui.playlist->setUpdatesEnabled(false);
        adding->clock.start();
    }
    const PlaylistIndex &index = m_ui.playlist->index();
    const AddPlan plan = planAdd(
        collected.paths, {[&index](const QString &path) { return index.isListed(path); },
                          [&index](const QString &path) { return index.hasPath(path); },
                          [this](const QString &path) { return m_list.pendingContainers.contains(path); }});
    const quint64 group = ++m_list.lastAddGroup;
    if (!plan.files.isEmpty()) {
        const int first = m_ui.playlist->count();
        adding->added = static_cast<int>(plan.files.size());
        m_ui.playlist->appendFiles(plan.files);
        recordChange(
            {PlaylistChange::Kind::Insert, {{first, adding->added}}, fileEntries(plan.files), group});
    }
    // The rows stand, and nobody wants to look at a frozen list until the last image has been read through.
    m_ui.playlist->setUpdatesEnabled(true);

    adding->remaining = plan.containers.size();
    const auto finish = [this, adding, done] {
        finishAdding(*adding);
        if (done)
            done();
    };
    if (plan.containers.isEmpty()) {
        finish();
        return;
    }
    for (const QString &container : plan.containers) {
        expandContainer(container, group, [adding, finish](int count) {
            adding->added += count;
            if (--adding->remaining <= 0)
                finish();
        });
    }
}

void PlayerGuiWindow::finishAdding(const AddOperation &adding)
{
    if (adding.added > 0)
        logLine(tr("已添加 %1 首 (列表共 %2 首)").arg(adding.added).arg(m_ui.playlist->count()));
    if (adding.bulk) {
        logLine(tr("批量添加耗时 %1 ms (%2 首, 只排版一次)")
                    .arg(adding.clock.nsecsElapsed() / nanosecondsPerMs)
                    .arg(adding.added));
    } else if (adding.added == 0) {
        logLine(tr("没有可以添加的音频文件"));
    }
    savePlaylist();
    if (adding.added > 0)
        applyLibraryFilter();
    refreshNavButtons();
}

void PlayerGuiWindow::chooseFiles()
{
    QStringList patterns;
    for (const QString &suffix : supportedSuffixes())
        patterns.append(u'*' + suffix);
    const QStringList filters{tr("音频文件 (%1)").arg(patterns.join(u' ')), tr("所有文件 (*)")};
    const QStringList paths =
        QFileDialog::getOpenFileNames(this, tr("导入音频文件"), {}, filters.join(u";;"_s));
    if (!paths.isEmpty())
        addPaths(paths);
}

void PlayerGuiWindow::chooseFolder()
{
    const QString folder = QFileDialog::getExistingDirectory(this, tr("添加文件夹"));
    if (!folder.isEmpty())
        addPaths({folder});
}

void PlayerGuiWindow::dragEnterEvent(QDragEnterEvent *event)
{
    if (event->mimeData()->hasUrls() && event->source() != m_ui.playlist)
        event->acceptProposedAction();
    else
        QMainWindow::dragEnterEvent(event);
}

void PlayerGuiWindow::dropEvent(QDropEvent *event)
{
    if (!event->mimeData()->hasUrls() || event->source() == m_ui.playlist) {
        QMainWindow::dropEvent(event);
        return;
    }
    const QStringList paths = localFiles(event->mimeData()->urls());
    event->accept();
    if (!paths.isEmpty())
        addPaths(paths);
}
