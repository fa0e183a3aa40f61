// The settings' choices of how the window looks.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stored_params.h"
#include "platform/settings_table.h"
#include "ui/look_controls.h"
#include "ui/theme.h"

using namespace Qt::StringLiterals;

namespace {

LookChoices storedLook(int sideWidth)
{
    const UserSettings store;
    LookChoices look;
    look.theme = readSetting(store, settings::theme);
    look.coverAccent = readSetting(store, settings::coverAccent);
    look.reduceMotion = readSetting(store, settings::reduceMotion);
    look.sideWidth = sideWidth;
    look.vizMode = vizModeAtTrackStart(store);
    return look;
}

} // namespace

void PlayerGuiWindow::connectLook()
{
    connect(m_ui.look, &LookControls::changed, this, [this] { applyLook(m_ui.look->choices()); });
    connect(m_ui.look, &LookControls::resetLayoutAsked, this, [this] {
        resetLayout();
        showLook();
    });
    connect(m_ui.look, &LookControls::pureDefaultsAsked, this, &PlayerGuiWindow::restorePureDefaults);
    showLook();
}

void PlayerGuiWindow::showLook()
{
    if (m_ui.look)
        m_ui.look->showChoices(storedLook(m_sideWidth));
}

void PlayerGuiWindow::applyLook(const LookChoices &look)
{
    const LookChoices former = storedLook(m_sideWidth);
    if (look.vizMode != former.vizMode) {
        writeUserSetting(settings::vizMode, look.vizMode);
        logLine(tr("频谱和示波器的选择已保存，从下一次播放会话起生效"));
    }
    if (look.reduceMotion != former.reduceMotion) {
        writeUserSetting(settings::reduceMotion, look.reduceMotion);
        theme::reduceMotion = look.reduceMotion;
    }
    if (look.theme != former.theme)
        setThemeIndex(look.theme);
    if (look.coverAccent != former.coverAccent) {
        writeUserSetting(settings::coverAccent, look.coverAccent);
        useCoverAccent(QPixmap::fromImage(m_cover.image));
    }
    if (look.sideWidth != former.sideWidth)
        setSideWidth(look.sideWidth, true);
    // A width out of range has been clamped.
    showLook();
}
