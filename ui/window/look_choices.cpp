// The settings' choices of how the window looks.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stored_params.h"
#include "engine/command_line.h"
#include "platform/settings_table.h"
#include "ui/instrument_panel.h"
#include "ui/look_controls.h"
#include "ui/scope_view.h"
#include "ui/spectrum_view.h"
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

void PlayerGuiWindow::changeVizMode(int former, int wanted)
{
    m_instruments.unwanted = ~wanted & (vizBit::spectrum | vizBit::scope);
    if (m_instruments.unwanted & vizBit::spectrum) {
        m_instruments.spectrumQueue.clear();
        m_instruments.spectrum.reset();
        m_ui.instruments->spectrum()->clear();
    }
    if (m_instruments.unwanted & vizBit::scope) {
        m_instruments.scope.reset();
        m_ui.instruments->scope()->clear();
    }
    tellWhyScopeIsEmpty();
    if (!sessionRuns()) {
        logLine(tr("频谱和示波器的选择已保存，从下一次播放会话起生效"));
        return;
    }
    for (const QString &line : vizModeLines(former, wanted))
        sendCmd(line);
}

void PlayerGuiWindow::applyLook(const LookChoices &look)
{
    const LookChoices former = storedLook(m_sideWidth);
    if (look.vizMode != former.vizMode) {
        writeUserSetting(settings::vizMode, look.vizMode);
        changeVizMode(former.vizMode, look.vizMode);
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
