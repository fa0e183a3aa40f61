/// \file
/// The verdict on the signal chain as the listener sees it at a glance: the worst of what is known.
#pragma once

#include "engine/chain_text.h"

#include <QMap>
#include <QString>
#include <optional>

enum class ChainLamp
{
    Off,   ///< not yet known
    Green, ///< the verdict says yes, the chain is clean, and no check has said otherwise
    Amber
};

/// All of one track; what was told of another track must not be in here.
struct ChainLampFacts
{
    bool playing = false;
    QMap<QString, QString> labels;   ///< from the engine's label to its value
    ChainText chain;                 ///< of its "chain:" line; empty while there is none
    QString chainLine;               ///< that line
    std::optional<bool> checkPassed; ///< of the last self-check of this track
};

struct ChainLampView
{
    ChainLamp lamp = ChainLamp::Off;
    QString word;     ///< translated; never claims more than the lamp
    QString sentence; ///< translated but for the engine's words: why the lamp is not green
    QString line;     ///< what the engine said of the chain, word for word; empty while it said nothing

    bool operator==(const ChainLampView &) const = default;
};

ChainLampView chainLamp(const ChainLampFacts &facts);
