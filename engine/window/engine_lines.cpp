// What the engine says, and what it measures, on its way to where it is shown.
#include "ui/window/player_gui_window.h"

#include "engine/command_line.h"
#include "engine/line_classifier.h"
#include "engine/telemetry_mailbox.h"
#include "engine/window/line_actions.h"
#include "ui/dsp_bar.h"
#include "ui/instrument_panel.h"

#include <variant>

using namespace Qt::StringLiterals;

namespace {

/// Finer than the eye sees.
constexpr int releaseIntervalMs = 15;
constexpr int levelRefreshMs = 50;

} // namespace

void PlayerGuiWindow::onEngineLine(const QString &line, bool isStderr)
{
    LineContext context;
    context.hostCopyOpen = m_link.hostCopy != nullptr;
    context.allToDsd = m_choices.pcmToDsd;
    const EngineLine read = classify(line, isStderr, m_lines, context);
    for (const LineEffect &effect : read.effects)
        std::visit(LineActions{*this}, effect);
}

void PlayerGuiWindow::drainMailbox()
{
    if (const auto mailbox = m_link.mailbox)
        mailbox->drain([this](const QString &line, bool isStderr) { onEngineLine(line, isStderr); });
}

void PlayerGuiWindow::buildInstrumentTimers()
{
    m_instruments.clock.start();
    const auto make = [this](int intervalMs, void (PlayerGuiWindow::*slot)()) {
        auto *timer = new QTimer(this);
        timer->setInterval(intervalMs);
        connect(timer, &QTimer::timeout, this, slot);
        return timer;
    };
    m_instruments.levelRelease = make(releaseIntervalMs, &PlayerGuiWindow::releaseLevels);
    m_instruments.spectrumRelease = make(releaseIntervalMs, &PlayerGuiWindow::releaseSpectra);
    m_instruments.levelRefresh = make(levelRefreshMs, &PlayerGuiWindow::refreshLevelText);
    m_instruments.levelRefresh->setSingleShot(true);
    m_instruments.clipRelease = make(clipHoldMs, &PlayerGuiWindow::releaseClip);
    m_instruments.clipRelease->setSingleShot(true);
}

void PlayerGuiWindow::receiveLevels(const LevelLine &levels, double delayMs)
{
    if (delayMs <= 0.) {
        showLevels(levels);
        return;
    }
    m_instruments.levelQueue.push(static_cast<double>(m_instruments.clock.elapsed()) + delayMs, levels);
    if (!m_instruments.levelRelease->isActive())
        m_instruments.levelRelease->start();
}

void PlayerGuiWindow::receiveSpectrum(const SpectrumFrame &frame, double delayMs)
{
    if (delayMs <= 0.) {
        showSpectrum(frame);
        return;
    }
    m_instruments.spectrumQueue.push(static_cast<double>(m_instruments.clock.elapsed()) + delayMs, frame);
    if (!m_instruments.spectrumRelease->isActive())
        m_instruments.spectrumRelease->start();
}

void PlayerGuiWindow::releaseLevels()
{
    const auto nowMs = static_cast<double>(m_instruments.clock.elapsed());
    while (const std::optional<LevelLine> levels = m_instruments.levelQueue.takeDue(nowMs))
        showLevels(*levels);
    if (m_instruments.levelQueue.isEmpty())
        m_instruments.levelRelease->stop();
}

void PlayerGuiWindow::releaseSpectra()
{
    const auto nowMs = static_cast<double>(m_instruments.clock.elapsed());
    while (const std::optional<SpectrumFrame> frame = m_instruments.spectrumQueue.takeDue(nowMs))
        showSpectrum(*frame);
    if (m_instruments.spectrumQueue.isEmpty())
        m_instruments.spectrumRelease->stop();
}

void PlayerGuiWindow::clearDelayedTelemetry()
{
    m_instruments.levelQueue.clear();
    m_instruments.spectrumQueue.clear();
    m_instruments.levelRelease->stop();
    m_instruments.spectrumRelease->stop();
    clearInstruments();
}

void PlayerGuiWindow::showLevels(const LevelLine &levels)
{
    m_instruments.levels = levels;
    if (!m_instruments.levelRefresh->isActive())
        m_instruments.levelRefresh->start();
}

void PlayerGuiWindow::refreshLevelText()
{
    showLevelReadings();
}

void PlayerGuiWindow::showSpectrum(const SpectrumFrame &frame)
{
    if (m_instruments.unwanted & vizBit::spectrum)
        return;
    m_instruments.spectrum = frame;
    showSpectrumFrame();
}

void PlayerGuiWindow::refreshSignalText()
{
    m_ui.instruments->showBits(m_signal.bits.bits.value_or(0), static_cast<int>(m_signal.bits.mode),
                               m_signal.bitsToolTip.isEmpty() ? m_signal.bits.text : m_signal.bitsToolTip);
    m_ui.dsp->showSummary(m_signal.effectsStatus, m_signal.pcmEffectsActive);
}
