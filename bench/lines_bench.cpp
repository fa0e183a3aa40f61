// What one line of the engine's output costs the GUI thread before anything is painted. An engine sends some
// seventy telemetry lines a second.
#include "engine/line_classifier.h"
#include "engine/progress_display.h"
#include "engine/telemetry_mailbox.h"

#include <benchmark/benchmark.h>

using namespace Qt::StringLiterals;

namespace {

void classifyLine(benchmark::State &state, const QString &line, bool isStderr)
{
    EngineLineState lineState;
    const LineContext context;
    // Beyond the lines that are logged because they are the first of their kind.
    for (int warmUp = 0; warmUp < 10; ++warmUp)
        benchmark::DoNotOptimize(classify(line, isStderr, lineState, context));
    for (auto _ : state)
        benchmark::DoNotOptimize(classify(line, isStderr, lineState, context));
    state.SetItemsProcessed(state.iterations());
}

void spectrumBy(benchmark::State &state)
{
    const auto bands = static_cast<int>(state.range(0));
    classifyLine(state, u"SPC 44100 %1 %2 %2"_s.arg(bands).arg(QString(2 * bands, u'a')), false);
}
BENCHMARK(spectrumBy)->Name("classify/SPC")->Arg(64)->Arg(128);

void scopeBy(benchmark::State &state)
{
    const auto buckets = static_cast<int>(state.range(0));
    classifyLine(state, u"WVF 44100 %1 %2 %2"_s.arg(buckets).arg(QString(4 * buckets, u'a')), false);
}
BENCHMARK(scopeBy)->Name("classify/WVF")->Arg(64)->Arg(256);

void mailbox(benchmark::State &state)
{
    TelemetryMailbox box([](const QString &, bool) {}, [] {});
    const QString line = u"LVL -3.25 -4.50"_s;
    for (auto _ : state)
        box.put(line, false);
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(mailbox)->Name("mailbox/put LVL");

void progress(benchmark::State &state)
{
    TrackProgressState progressState;
    ProgressFacts facts{50., 120., 240., 3, 240., 1.25, true};
    for (auto _ : state) {
        facts.positionSec += 0.2;
        benchmark::DoNotOptimize(updateProgress(progressState, facts));
    }
}
BENCHMARK(progress)->Name("updateProgress");

struct Kind
{
    const char *name;
    QString line;
    bool isStderr = false;
};

} // namespace

int main(int argc, char **argv)
{
    const Kind kinds[] = {
        {"LVL", u"LVL -3.25 -4.50"_s},
        {"LVL behind a time stamp", u"12:00:00.100 LVL -3.25 -4.50"_s},
        {"PG", u"PG 50.00 120.667 241.333"_s},
        {"SRC", u"SRC 44100 16 2 flac 0 241.333"_s},
        {"volume",
         u"volume: on a 24 bit device: SOFTWARE gain -6.02 dB, effective bits about 23 bit of 24"_s},
        {"chain", u"chain: clean (no stage changes a bit, and the device runs as the source does)"_s},
        {"log line", u"[ctl] recv load /music/Some Artist/Some Album (1999)/01 Some Track.flac"_s},
        {"error line", u"ALSA lib pcm.c:8568:(snd_pcm_recover) underrun occurred"_s, true},
        {"64 KiB without a form", QString(65536, u'x')},
    };
    for (const Kind &kind : kinds)
        benchmark::RegisterBenchmark(
            (std::string("classify/") + kind.name).c_str(),
            [kind](benchmark::State &state) { classifyLine(state, kind.line, kind.isStderr); });
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
