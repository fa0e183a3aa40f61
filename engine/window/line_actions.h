/// \file
/// What the window does about each effect of an output line.
#pragma once

#include "engine/line_effects.h"

class PlayerGuiWindow;

/// A visitor of the effects. GUI thread.
struct LineActions
{
    PlayerGuiWindow &window;

    void operator()(const line_effect::WriteHostCopy &effect) const;
    void operator()(const line_effect::ShowChainBlock &effect) const;
    void operator()(const line_effect::RedrawChainPanel &effect) const;
    void operator()(const line_effect::StopNoAudioTimer &effect) const;
    void operator()(const line_effect::LogFileOnly &effect) const;
    void operator()(const line_effect::LogLine &effect) const;
    void operator()(const line_effect::ShowStatus &effect) const;
    void operator()(const line_effect::ShowDecodeFilter &effect) const;
    void operator()(const line_effect::ShowScan &effect) const;
    void operator()(const line_effect::ShowSource &effect) const;
    void operator()(const line_effect::ShowLevels &effect) const;
    void operator()(const line_effect::ShowPanelStatus &effect) const;
    void operator()(const line_effect::ShowEffectiveBits &effect) const;
    void operator()(const line_effect::ShowChainText &effect) const;
    void operator()(const line_effect::ReceiveVerify &effect) const;
    void operator()(const line_effect::ClearScope &effect) const;
    void operator()(const line_effect::ClearSpectrum &effect) const;
    void operator()(const line_effect::ShowScope &effect) const;
    void operator()(const line_effect::ShowSpectrumZones &effect) const;
    void operator()(const line_effect::ShowSpectrum &effect) const;
    void operator()(const line_effect::SetEffectsPath &effect) const;
    void operator()(const line_effect::ReceiveProgress &effect) const;
    void operator()(const line_effect::UpdatePercent &effect) const;
    void operator()(const line_effect::ChangeSegment &effect) const;
    void operator()(const line_effect::FinishTrack &effect) const;
    void operator()(const line_effect::FailTrack &effect) const;
    void operator()(const line_effect::ForgetDeviceTrouble &effect) const;
    void operator()(const line_effect::NoteBusyDevice &effect) const;
    void operator()(const line_effect::NoteMissingDevice &effect) const;
};
