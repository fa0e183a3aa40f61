// A whole output of an engine that may say anything, line by line.
#include "engine/line_classifier.h"
#include "engine/line_effect_text.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    EngineLineState state;
    LineContext context;
    context.hostCopyOpen = true;
    for (const QString &line : text.split(u'\n')) {
        // One length in sixteen stands for error output, so that the fuzzer reaches both without a mark of
        // its own.
        const EngineLine result = classify(line, line.size() % 16 == 15, state, context);
        for (const LineEffect &effect : result.effects)
            if (describe(effect).isEmpty())
                __builtin_trap();
        // A line has a bounded number of effects, however much it holds.
        if (result.effects.empty() || result.effects.size() > 16)
            __builtin_trap();
        if (!(state.outputLatencyMs >= 0. && state.outputLatencyMs < 5000.) ||
            state.telemetryCount.size() > 8)
            __builtin_trap();
    }
    return 0;
}
