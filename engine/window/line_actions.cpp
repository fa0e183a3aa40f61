#include "engine/window/line_actions.h"

#include "engine/command_line.h"
#include "ui/display_panel.h"
#include "ui/instrument_panel.h"
#include "ui/progress_dial.h"
#include "ui/progress_row.h"
#include "ui/scope_view.h"
#include "ui/spectrum_view.h"
#include "ui/stage.h"
#include "ui/window/player_gui_window.h"

#include <QLabel>

using namespace line_effect;

void LineActions::operator()(const WriteHostCopy &effect) const
{
    window.m_link.hostCopy->write(effect.line.toUtf8());
    ++window.m_link.hostLineCount;
    window.m_link.hostCopy->flush();
}

void LineActions::operator()(const ShowChainBlock &) const
{
    window.showChainBlock();
}

void LineActions::operator()(const RedrawChainPanel &) const
{
    window.refreshChainPanel();
}

void LineActions::operator()(const StopNoAudioTimer &) const
{
    if (window.m_link.noAudioTimer)
        window.m_link.noAudioTimer->stop();
}

void LineActions::operator()(const LogFileOnly &effect) const
{
    window.logFileOnly(effect.text);
}

void LineActions::operator()(const LogLine &effect) const
{
    window.logLine(effect.text, effect.isError);
}

void LineActions::operator()(const ShowStatus &effect) const
{
    window.showMessage(effect.text);
}

void LineActions::operator()(const ShowDecodeFilter &effect) const
{
    window.showPcmFilter(effect.filter.name, effect.filter.automatic);
}

void LineActions::operator()(const ShowScan &effect) const
{
    const ScanDisplay display = updateScan(window.m_progress, effect.scan);
    window.m_ui.progress->dial->showFraction(static_cast<double>(display.barValue) / progressBarMaximum);
    window.m_ui.progress->showText(display.text);
    window.showMessage(display.text);
    if (!display.logText.isEmpty())
        window.logLine(display.logText);
}

void LineActions::operator()(const ShowSource &effect) const
{
    const SourceLabels &labels = effect.labels;
    window.m_start.former.announced();
    if (effect.newTrack)
        window.forgetTrackFacts();
    window.m_chain.cards = chainCardTexts(effect.source, labels);
    window.refreshChainPanel();
    window.m_ui.stage->showAudioLine(labels.info, labels.bitrate);
    if (labels.ledBits)
        window.m_signal.bits.bits = labels.ledBits;
    window.refreshSignalText();
}

void LineActions::operator()(const ShowLevels &effect) const
{
    window.receiveLevels(effect.levels, effect.delayMs);
}

void LineActions::operator()(const ShowPanelStatus &effect) const
{
    window.m_signal.effectsStatus = effect.text;
    window.refreshSignalText();
}

void LineActions::operator()(const ShowEffectiveBits &effect) const
{
    window.m_signal.bits = effect.result;
    window.m_signal.bitsToolTip = effect.toolTip;
    window.refreshSignalText();
}

void LineActions::operator()(const ShowChainText &effect) const
{
    window.m_signal.chain = effect.result;
    window.m_signal.chainToolTip = effect.toolTip;
    window.refreshChainPanel();
}

void LineActions::operator()(const ReceiveVerify &effect) const
{
    window.onVerifyLine(effect.text);
}

void LineActions::operator()(const ClearScope &) const
{
    window.m_instruments.scope.reset();
    window.m_ui.instruments->scope()->showNoPcm(
        PlayerGuiWindow::tr("这条链上没有 PCM（DSD 直通）——没有波形"));
}

void LineActions::operator()(const ClearSpectrum &) const
{
    window.m_instruments.spectrum.reset();
    window.m_ui.instruments->spectrum()->showNoPcm(
        PlayerGuiWindow::tr("此路径没有频谱：DSD 直接输出不含 PCM"));
    // Where nothing can be analysed there is no waveform either, whether or not the engine says so too.
    (*this)(ClearScope{});
}

void LineActions::operator()(const ShowScope &effect) const
{
    if (window.m_instruments.unwanted & vizBit::scope)
        return;
    window.m_instruments.scope = effect.frame;
    window.showScopeFrame();
}

void LineActions::operator()(const ShowSpectrumZones &effect) const
{
    window.m_instruments.zones = effect.zones;
    window.m_ui.instruments->spectrum()->setZones(
        effect.zones.low.value_or(0), effect.zones.audible.value_or(0), effect.zones.nyquist.value_or(0));
}

void LineActions::operator()(const ShowSpectrum &effect) const
{
    window.receiveSpectrum(effect.frame, effect.delayMs);
}

void LineActions::operator()(const SetEffectsPath &effect) const
{
    window.m_signal.pcmEffectsActive = effect.pcmEffectsActive;
    window.m_signal.dsdDirect = effect.dsdDirect;
}

void LineActions::operator()(const ReceiveProgress &effect) const
{
    window.onProgress(effect.progress);
}

void LineActions::operator()(const UpdatePercent &effect) const
{
    window.updateProgress(effect.percent, -1., 0.);
}

void LineActions::operator()(const ChangeSegment &effect) const
{
    window.segmentChanged(effect.number);
}

void LineActions::operator()(const FinishTrack &effect) const
{
    // What the ended track still has in the mailbox must not be taken for news of the next one.
    window.drainMailbox();
    window.onDoneLine(effect.file);
}

void LineActions::operator()(const FailTrack &effect) const
{
    window.drainMailbox();
    window.onFailedLine(effect.text);
}

void LineActions::operator()(const ForgetDeviceTrouble &) const
{
    window.m_devices.lastBusyDevice.clear();
    window.m_devices.lastMissingDevice.clear();
}

void LineActions::operator()(const NoteBusyDevice &) const
{
    window.m_devices.lastBusyDevice = window.currentDeviceName();
}

void LineActions::operator()(const NoteMissingDevice &) const
{
    window.m_devices.lastMissingDevice = window.currentDeviceName();
}
