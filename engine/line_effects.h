/// \file
/// What an output line of the engine asks of the window: one record an action, to be carried out in order.
#pragma once

#include "engine/chain_text.h"
#include "engine/effective_bits_table.h"
#include "engine/frame_lines.h"
#include "engine/source_labels.h"
#include "engine/telemetry_lines.h"

#include <QString>
#include <variant>
#include <vector>

namespace line_effect {

/// Write to the host copy of the engine's log, count the line there, and flush.
struct WriteHostCopy
{
    QString line; ///< as it came, ending in a newline
};
/// The chain block has ended: show its buffer, then empty it.
struct ShowChainBlock
{
};
/// A labelled fact of the chain has changed.
struct RedrawChainPanel
{
};
/// Sound is flowing: stop waiting for it.
struct StopNoAudioTimer
{
};
/// To the log file and not to the pane.
struct LogFileOnly
{
    QString text;
};
struct LogLine
{
    QString text;
    bool isError = false;
};
struct ShowStatus
{
    QString text;
};
struct ShowDecodeFilter
{
    DecodeFilterLine filter;
};
struct ShowScan
{
    ScanLine scan;
};
struct ShowSource
{
    SourceInfo source;
    SourceLabels labels;
    bool newTrack = false; ///< the engine has gone on by itself: nothing told before is of this source
};
/// Give the levels to the meters: at once with a delay of 0, else when the delay is over.
struct ShowLevels
{
    LevelLine levels;
    double delayMs = 0.;
};
/// The effects panel's status text.
struct ShowPanelStatus
{
    QString text; ///< translated
};
/// Show the effective bits; the tooltip is the text, a newline and the line.
struct ShowEffectiveBits
{
    EffectiveBits result;
    QString toolTip;
};
/// Show the verdict with the line as its tooltip, and re-polish the lamp's style.
struct ShowChainText
{
    ChainText result;
    QString toolTip;
};
struct ReceiveVerify
{
    QString text; ///< begins with "verify: "
};
/// Clear the view and mark it empty: there is no PCM to show.
struct ClearScope
{
};
struct ClearSpectrum
{
};
struct ShowScope
{
    WaveformFrame frame; ///< both channels filled
};
struct ShowSpectrumZones
{
    SpectrumZones zones;
};
/// Give the frame to the view: at once with a delay of 0, else when the delay is over.
struct ShowSpectrum
{
    SpectrumFrame frame;
    double delayMs = 0.;
};
/// Which road the samples take. The panel keeps both flags.
struct SetEffectsPath
{
    bool pcmEffectsActive = false;
    bool dsdDirect = false;
};
/// Auto-advance test, position, progress display, end-of-track tests, in this order.
struct ReceiveProgress
{
    ProgressLine progress;
};
/// The progress display alone, with a position of -1 and a total of 0.
struct UpdatePercent
{
    double percent = 0.;
};
struct ChangeSegment
{
    int number = 0;
};
/// The track has ended and the engine stays up.
struct FinishTrack
{
    QString file; ///< as the engine names it
};
/// A track cannot be played, or not to its end; the engine stays up and says the reason and the path.
struct FailTrack
{
    QString text; ///< the whole line
};
/// A device opened: what was known of a busy or missing one is void.
struct ForgetDeviceTrouble
{
};
/// Somebody else holds the current device.
struct NoteBusyDevice
{
};
/// The engine does not find the current device.
struct NoteMissingDevice
{
};

} // namespace line_effect

using LineEffect =
    std::variant<line_effect::WriteHostCopy, line_effect::ShowChainBlock, line_effect::RedrawChainPanel,
                 line_effect::StopNoAudioTimer, line_effect::LogFileOnly, line_effect::LogLine,
                 line_effect::ShowStatus, line_effect::ShowDecodeFilter, line_effect::ShowScan,
                 line_effect::ShowSource, line_effect::ShowLevels, line_effect::ShowPanelStatus,
                 line_effect::ShowEffectiveBits, line_effect::ShowChainText, line_effect::ReceiveVerify,
                 line_effect::ClearScope, line_effect::ClearSpectrum, line_effect::ShowScope,
                 line_effect::ShowSpectrumZones, line_effect::ShowSpectrum, line_effect::SetEffectsPath,
                 line_effect::ReceiveProgress, line_effect::UpdatePercent, line_effect::ChangeSegment,
                 line_effect::FinishTrack, line_effect::FailTrack, line_effect::ForgetDeviceTrouble,
                 line_effect::NoteBusyDevice, line_effect::NoteMissingDevice>;

using LineEffects = std::vector<LineEffect>;
