// What keys and the context menu do with rows.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/file_manager.h"
#include "playback/history_store.h"
#include "playback/playlist_widget.h"
#include "playback/row_properties.h"

#include <QAction>
#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QMenu>
#include <QMessageBox>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::StringLiterals;

namespace {

/// More files than this are not marked in the file manager; a mistaken "select all" would open thousands.
constexpr int mostShownFiles = 20;

/// Beside the settings where these were sent elsewhere, so that both stay together; else with the data.
QString historyFile()
{
    const QString name = u"playlist.history"_s;
    if (!qEnvironmentVariable("KELP_SETTINGS_DIR").trimmed().isEmpty())
        return QFileInfo(userSettingsFile().path()).dir().filePath(name);
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)).filePath(name);
}

/// The file that stands for the row in a folder.
QString fileOfRow(const PlaylistEntry &entry)
{
    return entry.cuePath.isEmpty() || entry.isStream() ? entry.path : entry.cuePath;
}

} // namespace

void PlayerGuiWindow::connectPlaylist()
{
    PlaylistWidget *list = m_ui.playlist;
    m_historyStore = new HistoryStore(historyFile(), this);
    m_historyStore->onFailure = [this](const QString &complaint) { logLine(complaint, true); };
    setAcceptDrops(true);
    list->onFilesDropped = [this](const QStringList &paths) { addPaths(paths); };
    list->onDragStarted = [this] { noteDragKey(); };
    list->onOrderChanged = [this] { orderChanged(); };
    addPlaylistActions();
    list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(list, &QWidget::customContextMenuRequested, this, [this, list](const QPoint &point) {
        auto *menu = new QMenu(this);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        fillPlaylistMenu(*menu);
        menu->popup(list->viewport()->mapToGlobal(point));
    });
}

void PlayerGuiWindow::addPlaylistActions()
{
    const auto add = [](QWidget *owner, const QKeySequence &key, Qt::ShortcutContext context,
                        const auto &act) {
        auto *action = new QAction(owner);
        action->setShortcut(key);
        action->setShortcutContext(context);
        connect(action, &QAction::triggered, owner, act);
        owner->addAction(action);
    };
    add(m_ui.playlist, QKeySequence::Delete, Qt::WidgetShortcut, [this] { removeSelectedRows(); });
    add(this, Qt::CTRL | Qt::Key_Z, Qt::WindowShortcut, [this] { undoPlaylist(); });
    add(this, Qt::CTRL | Qt::SHIFT | Qt::Key_Z, Qt::WindowShortcut, [this] { redoPlaylist(); });
}

void PlayerGuiWindow::fillPlaylistMenu(QMenu &menu)
{
    PlaylistWidget *list = m_ui.playlist;
    const int current = list->currentRow();
    const bool any = !list->selectedRuns().isEmpty();
    const auto add = [&menu](const QString &text, bool enabled, const QKeySequence &key, const auto &act) {
        QAction *action = menu.addAction(text, act);
        action->setEnabled(enabled);
        // Shown as a reminder; the key itself belongs to the list's own action.
        action->setShortcut(key);
        action->setShortcutContext(Qt::WidgetShortcut);
        return action;
    };
    add(tr("播放"), current >= 0, Qt::Key_Return, [this, current] { startPlayback(current); });
    add(tr("移除"), any, QKeySequence::Delete, [this] { removeSelectedRows(); });
    add(tr("在文件管理器中显示"), any, {}, [this] { showFilesOfSelection(); });
    menu.addSeparator();
    add(tr("移到最前"), any, {}, [this] { moveSelectedRows(true); });
    add(tr("移到最后"), any, {}, [this] { moveSelectedRows(false); });
    add(tr("属性"), current >= 0, {}, [this, current] { showRowProperties(current); });
    menu.addSeparator();
    add(tr("全选"), list->count() > 0, QKeySequence::SelectAll, [list] { list->selectAll(); });
    add(tr("撤销"), m_list.history.canUndo(), Qt::CTRL | Qt::Key_Z, [this] { undoPlaylist(); });
    add(tr("重做"), m_list.history.canRedo(), Qt::CTRL | Qt::SHIFT | Qt::Key_Z, [this] { redoPlaylist(); });
    menu.addSeparator();
    add(tr("添加文件夹…"), true, {}, [this] { chooseFolder(); });
    add(tr("清空列表"), list->count() > 0, {}, [this] { clearPlaylist(); });
}

void PlayerGuiWindow::showFilesOfSelection()
{
    QStringList files;
    for (const RowRun &run : m_ui.playlist->selectedRuns()) {
        for (int row = run.first; row < run.first + run.count && files.size() < mostShownFiles; ++row) {
            const PlaylistEntry entry = m_ui.playlist->entryAt(row);
            if (!entry.isStream() && !files.contains(fileOfRow(entry)))
                files.append(fileOfRow(entry));
        }
    }
    if (files.isEmpty())
        return;
    showInFileManager(files, this, [this, folder = QFileInfo(files.first()).path()] {
        logLine(tr("没有文件管理器应答 ⇒ 改为打开文件夹: %1").arg(folder));
        if (!QDesktopServices::openUrl(QUrl::fromLocalFile(folder)))
            logLine(tr("打不开文件夹: %1").arg(folder), true);
    });
}

void PlayerGuiWindow::showRowProperties(int row)
{
    if (!m_ui.playlist->hasRow(row))
        return;
    auto *box = new QMessageBox(QMessageBox::Information, tr("曲目属性"), {}, QMessageBox::Ok, this);
    box->setTextFormat(Qt::PlainText);
    box->setText(rowProperties(m_ui.playlist->entryAt(row), row, m_ui.playlist->count()));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}
