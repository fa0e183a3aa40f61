/// \file
/// The steps by which an output line is read. Of use to classify() alone.
#pragma once

#include "engine/line_classifier.h"

#include <utility>

namespace line_step {

enum class Next
{
    Continue,
    End ///< the line is finished
};

/// A line on its way through the steps.
struct Reading
{
    const QString &raw;
    const QString &text;
    bool isStderr;
    EngineLineState &state;
    const LineContext &context;
    LineEffects &effects;

    template<typename Effect>
    void add(Effect &&effect)
    {
        effects.emplace_back(std::forward<Effect>(effect));
    }
};

/// Whether the text begins with "LVL ", "SPC " or "PG ".
bool beginsWithTelemetry(QStringView text);
/// How long after now what is measured now is heard; 0 when that makes no difference.
double displayDelayMs(const EngineLineState &state);

// What is kept of every line.
Next copyToHost(Reading &line);
Next remember(Reading &line);
Next collectChain(Reading &line);
Next storeLabel(Reading &line);
Next countTelemetry(Reading &line);
Next readDecodeFilter(Reading &line);
Next endStderr(Reading &line);
Next readWarning(Reading &line);
Next askPanel(Reading &line);

// Facts that stand somewhere in a line.
Next readScan(Reading &line);
Next readSource(Reading &line);
Next readLevels(Reading &line);
Next readDenoise(Reading &line);
Next readLatency(Reading &line);
Next readVerify(Reading &line);
Next readVolume(Reading &line);
Next readChain(Reading &line);

// Forms that are a line of their own, and the rest.
Next readScope(Reading &line);
Next readSpectrum(Reading &line);
Next readProgress(Reading &line);
Next readSegment(Reading &line);
Next readDone(Reading &line);
Next readPercent(Reading &line);
Next readPlainText(Reading &line);

} // namespace line_step
