#include "engine/line_classifier.h"

#include "engine/line_steps.h"

#include <array>

using namespace line_step;

namespace {

using Step = Next (*)(Reading &);

/// The order is part of the protocol: what an earlier step ends, a later one never sees.
constexpr std::array<Step, 24> steps = {
    copyToHost,   remember,     collectChain, storeLabel, countTelemetry, readDecodeFilter,
    endStderr,    readWarning,  askPanel,     readScan,   readSource,     readLevels,
    readDenoise,  readLatency,  readVerify,   readVolume, readChain,      readScope,
    readSpectrum, readProgress, readSegment,  readDone,   readPercent,    readPlainText,
};

} // namespace

EngineLine classify(const QString &line, bool isStderr, EngineLineState &state, const LineContext &context)
{
    EngineLine result;
    result.text = line;
    result.text.remove(u'\r');
    result.text = result.text.trimmed();
    Reading reading{line, result.text, isStderr, state, context, result.effects};
    for (const Step step : steps) {
        if (step(reading) == Next::End)
            break;
    }
    return result;
}
