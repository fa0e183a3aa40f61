/// \file
/// What the engine's output has told so far, as far as reading its next line needs it.
#pragma once

#include "engine/chain_block.h"
#include "engine/telemetry_lines.h"

#include <QMap>
#include <QString>
#include <optional>

/// GUI thread only.
struct EngineLineState
{
    QString lastEngineLine; ///< the last line that is neither levels, spectrum nor progress
    QMap<QString, qint64> telemetryCount;
    double outputLatencyMs = 0.;          ///< 0 … below 5000
    std::optional<SourceInfo> sourceInfo; ///< none before an engine has announced a source
    ChainBlock chain;
    int deviceBits = 0; ///< the device's depth, 0 while no line has told it

    // Of one start of a track:
    bool firstPgSeen = false;
    bool firstScopeFrameSeen = false;
    bool modulatorAnnounced = false; ///< the log says who applies the effects

    /// To be called when a track is started. All else survives until it is overwritten.
    void resetForTrack()
    {
        firstPgSeen = false;
        firstScopeFrameSeen = false;
        modulatorAnnounced = false;
    }
};
