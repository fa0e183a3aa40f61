// The window's keys, and what it sees of the events of others.
#include "ui/window/player_gui_window.h"

#include "ui/dock_bar.h"
#include "ui/library_panel.h"
#include "ui/title_bar.h"
#include "ui/tools_menu.h"

#include <QShortcut>

using namespace Qt::StringLiterals;

void PlayerGuiWindow::buildShortcuts()
{
    const auto key = [this](const QKeySequence &sequence, auto &&action) {
        connect(new QShortcut(sequence, this), &QShortcut::activated, this, action);
    };
    key(Qt::Key_Space, [this] { pressOrToggle(); });
    key(Qt::CTRL | Qt::Key_Left, [this] { stepRow(-1); });
    key(Qt::CTRL | Qt::Key_Right, [this] { stepRow(1); });
    key(Qt::CTRL | Qt::Key_Space, [this] { stopPlayback(); });
    key(Qt::CTRL | Qt::Key_Up, [this] { turnVolume(1); });
    key(Qt::CTRL | Qt::Key_Down, [this] { turnVolume(-1); });
    key(Qt::CTRL | Qt::Key_O, [this] { m_ui.library->importFiles->click(); });
    key(Qt::CTRL | Qt::Key_Comma, [this] { openSetup(); });
    key(Qt::Key_F11, [this] { m_ui.title->toggleMaximised(); });
}

void PlayerGuiWindow::pressOrToggle()
{
    // Buttons take the focus from the keyboard alone, so a focused one is the one that is meant.
    auto *button = qobject_cast<QAbstractButton *>(focusWidget());
    if (button && button->hasFocus())
        button->click();
    else
        togglePause();
}

bool PlayerGuiWindow::eventFilter(QObject *watched, QEvent *event)
{
    // A change of the system's colours closes the open menu: it would stay in the old ones.
    if (event->type() == QEvent::ApplicationPaletteChange && m_toolPanel == ToolPanel::Menu && m_toolsMenu)
        m_toolsMenu->close();
    return QMainWindow::eventFilter(watched, event);
}
