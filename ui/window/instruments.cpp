// What was measured, on its way into the instruments.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "app/stored_params.h"
#include "engine/command_line.h"
#include "ui/instrument_panel.h"
#include "ui/meter_reading.h"
#include "ui/scope_view.h"
#include "ui/spectrum_view.h"

void PlayerGuiWindow::showLevelReadings()
{
    const qint64 nowMs = m_instruments.clock.elapsed();
    const MeterReading left = readMeter(m_instruments.levels.leftDb, nowMs, m_instruments.clipUntil);
    const MeterReading right = readMeter(m_instruments.levels.rightDb, nowMs, m_instruments.clipUntil);
    m_ui.instruments->showLevels(left, right);
    // Also when no level comes any more.
    if (left.clip || right.clip)
        m_instruments.clipRelease->start(static_cast<int>(m_instruments.clipUntil - nowMs));
}

void PlayerGuiWindow::releaseClip()
{
    m_ui.instruments->endClip();
}

void PlayerGuiWindow::showSpectrumFrame()
{
    const SpectrumFrame &frame = *m_instruments.spectrum;
    m_ui.instruments->spectrum()->showFrame(frame.main, frame.peaks.empty() ? frame.main : frame.peaks,
                                            frame.bandCount);
}

void PlayerGuiWindow::showScopeFrame()
{
    const WaveformFrame &frame = *m_instruments.scope;
    const WaveformChannel &right = frame.channel2.first.empty() ? frame.channel1 : frame.channel2;
    m_ui.instruments->scope()->showFrame({frame.channel1.first, frame.channel1.second},
                                         {right.first, right.second}, frame.bucketCount);
}

void PlayerGuiWindow::tellWhyScopeIsEmpty()
{
    QString why;
    if (m_start.uiPlaying) {
        const bool asked = vizModeAtTrackStart(UserSettings()) & vizBit::scope;
        why = asked ? tr("正在等待波形") : tr("示波器已关闭，没有波形");
    }
    m_ui.instruments->scope()->setIdleText(why);
}

void PlayerGuiWindow::clearInstruments()
{
    m_instruments.levelRefresh->stop();
    m_instruments.clipRelease->stop();
    m_instruments.clipUntil = 0;
    m_instruments.levels = {};
    m_instruments.spectrum.reset();
    m_instruments.scope.reset();
    m_ui.instruments->clear();
}
