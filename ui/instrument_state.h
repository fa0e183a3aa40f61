/// \file
/// The window's memory for what the engine measures: what waits to be heard, and what was shown last.
#pragma once

#include "engine/chain_text.h"
#include "engine/delay_queue.h"
#include "engine/effective_bits_table.h"

#include <QElapsedTimer>
#include <QStringList>
#include <QTimer>

struct InstrumentState
{
    LevelQueue levelQueue{mostDelayedLevels};
    SpectrumQueue spectrumQueue{mostDelayedSpectra};
    QElapsedTimer clock; ///< of the queues' times
    // Children of the window; the first two run while their queue holds something.
    QTimer *levelRelease = nullptr;
    QTimer *spectrumRelease = nullptr;
    QTimer *levelRefresh = nullptr; ///< brings many levels into one repaint

    QTimer *clipRelease = nullptr; ///< lets the red of a clip go
    qint64 clipUntil = 0;          ///< on `clock`, in ms; one for both channels

    /// What the listener has switched off, a sum of vizBit: frames of it that are still on their way come to
    /// nothing.
    int unwanted = 0;

    LevelLine levels;
    std::optional<SpectrumFrame> spectrum; ///< none while there is no PCM to show
    std::optional<WaveformFrame> scope;    ///< likewise
    SpectrumZones zones;
};

/// What the engine says of the road that the samples take.
struct SignalState
{
    bool pcmEffectsActive = false;
    bool dsdDirect = false;
    QString effectsStatus; ///< translated
    EffectiveBits bits;
    QString bitsToolTip;
    ChainText chain;
    QString chainToolTip;
    QStringList chainReport; ///< lines of the last whole block
};
