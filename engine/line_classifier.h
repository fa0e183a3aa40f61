/// \file
/// Turns one line of the engine's output into what is to be done about it.
#pragma once

#include "engine/engine_line_state.h"
#include "engine/line_effects.h"

#include <QString>
#include <functional>

/// What the window has, for steps that make no sense without it.
struct LineContext
{
    bool hostCopyOpen = false; ///< the host copy of the engine's log
    bool hasSourceLabel = true;
    bool hasEffectsPanel = true;
    bool hasBitsLed = true;
    bool hasChainLed = true;
    bool allToDsd = false; ///< everything is played as DSD, so that effects act in the modulator
    /// Shows the line to the effects panel; true when the line is the panel's own and ends there. May be
    /// empty.
    std::function<bool(const QString &text)> effectsPanelTakes;
};

/// One line, read.
struct EngineLine
{
    QString text; ///< without carriage returns, trimmed
    LineEffects effects;
};

/// Reads a line in the fixed order of the protocol's steps. What the line tells about the engine goes into
/// the state; what is to be shown, logged or decided comes back. Lines that do not parse have no effect.
EngineLine classify(const QString &line, bool isStderr, EngineLineState &state, const LineContext &context);
