/// \file
/// What the engine's output has told so far. Nothing else here models the engine.
#pragma once

#include "engine/output_lines.h"

#include <QMap>
#include <QString>
#include <QStringList>
#include <optional>

struct EngineOutputState
{
    QString lastEngineLine; ///< the last line that is not telemetry
    QMap<QString, qint64> telemetryCount;
    double outputLatencyMs = 0.;
    std::optional<engine_line::Source>
        sourceInfo;         ///< of the track that plays; none before it announced itself
    QStringList chainBlock; ///< lines of the signal chain block
    bool collectingChain = false;
    int lastScanStep = -1; ///< the last tenth of a scan that was logged
};
