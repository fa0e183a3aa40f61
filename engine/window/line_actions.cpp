#include "engine/window/line_actions.h"

#include "output/engine_controls.h"
#include "ui/display_panel.h"
#include "ui/progress_row.h"
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
    window.m_ui.engine->showPcmFilter(effect.filter.name, effect.filter.automatic);
}

void LineActions::operator()(const ShowScan &effect) const
{
    const ScanDisplay display = updateScan(window.m_progress, effect.scan);
    window.m_ui.progress->showBar(display.barValue);
    window.m_ui.progress->showText(display.text);
    window.showMessage(display.text);
    if (!display.logText.isEmpty())
        window.logLine(display.logText);
}

void LineActions::operator()(const ShowSource &effect) const
{
    const SourceLabels &labels = effect.labels;
    if (effect.newTrack)
        window.forgetTrackFacts();
    window.m_chain.cards = chainCardTexts(effect.source, labels);
    window.refreshChainPanel();
    window.m_ui.sourceInfo->setText(labels.info);
    window.m_ui.sourceInfo->setToolTip(labels.bitrate);
    window.m_ui.display->showFormat(labels.format);
    if (labels.ledBits)
        window.m_signal.bits.bits = labels.ledBits;
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
}

void LineActions::operator()(const ClearSpectrum &) const
{
    window.m_instruments.spectrum.reset();
}

void LineActions::operator()(const ShowScope &effect) const
{
    window.m_instruments.scope = effect.frame;
}

void LineActions::operator()(const ShowSpectrumZones &effect) const
{
    window.m_instruments.zones = effect.zones;
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

void LineActions::operator()(const FinishTrack &) const
{
    // What the ended track still has in the mailbox must not be taken for news of the next one.
    window.drainMailbox();
    window.onDoneLine();
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
