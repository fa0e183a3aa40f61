// How fast the engine's processing stages are. "x_real_time" is seconds of stereo music a second of one core;
// copyBaseline, a bare copy of the samples in the same run, sets them in proportion to the machine.

#include "player_core/dsp/meters.h"
#include "player_core/dsp/pdm_decimator.h"
#include "player_core/dsp/resampler.h"
#include "player_core/dsp/wire_writer.h"

#include <cmath>
#include <cstring>
#include <vector>

#include <benchmark/benchmark.h>

using namespace kelp_core;

namespace {

constexpr int dsd64Hz = 2822400;

std::vector<uint8_t> randomDsd(size_t bytes)
{
    std::vector<uint8_t> dsd(bytes);
    uint32_t state = 1;
    for (uint8_t &byte : dsd) {
        state = state * 1664525u + 1013904223u;
        byte = static_cast<uint8_t>(state >> 24);
    }
    return dsd;
}

std::vector<double> tone(size_t samples)
{
    std::vector<double> pcm(samples);
    for (size_t i = 0; i < samples; ++i)
        pcm[i] = 0.5 * std::sin(0.05 * static_cast<double>(i));
    return pcm;
}

void realTime(benchmark::State &state, double secondsPerRound)
{
    state.counters["x_real_time"] = benchmark::Counter(
        secondsPerRound * static_cast<double>(state.iterations()), benchmark::Counter::kIsRate);
}

/// Arguments: filter, DSD rate in multiples of DSD64, PCM rate.
void pdmDecimator(benchmark::State &state)
{
    const auto filter = static_cast<PdmFilter>(state.range(0));
    const int dsdRateHz = dsd64Hz * static_cast<int>(state.range(1));
    const auto frames = static_cast<size_t>(dsdRateHz / 8 / 20);
    const std::vector<uint8_t> dsd = randomDsd(frames * 2);
    PdmDecimator decimator(filter, dsdRateHz, static_cast<int>(state.range(2)), 2);
    std::vector<double> out;
    for (auto _ : state) {
        out.clear();
        decimator.process(dsd.data(), frames, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetLabel(pdmFilterName(filter));
    realTime(state, 0.05);
}
BENCHMARK(pdmDecimator)->ArgsProduct({{0, 1, 2}, {1}, {44100, 88200, 176400, 352800}});
BENCHMARK(pdmDecimator)->ArgsProduct({{0, 1, 2}, {4, 32}, {176400}});

/// Arguments: quality, rates.
void resampler(benchmark::State &state)
{
    const auto quality = static_cast<ResampleQuality>(state.range(0));
    const auto frames = static_cast<size_t>(state.range(1) / 20);
    const std::vector<double> in = tone(frames * 2);
    Resampler stage(quality, static_cast<int>(state.range(1)), static_cast<int>(state.range(2)), 2);
    std::vector<double> out;
    for (auto _ : state) {
        out.clear();
        stage.process(in.data(), frames, out);
        benchmark::DoNotOptimize(out.data());
    }
    state.SetLabel(resampleQualityName(quality));
    realTime(state, 0.05);
}
BENCHMARK(resampler)->ArgsProduct({{0, 1, 2}, {44100}, {48000, 96000}});
BENCHMARK(resampler)->ArgsProduct({{0, 1, 2}, {192000}, {44100}});

/// Argument: dither.
void pcmWriter(benchmark::State &state)
{
    const std::vector<double> in = tone(44100 * 2);
    std::vector<uint8_t> out(in.size() * 2);
    PcmWriter writer({Carrier::pcm, SampleEncoding::s16, 44100, 2, 16});
    for (auto _ : state) {
        writer.write(in.data(), in.size() / 2, out.data(), state.range(0) != 0);
        benchmark::DoNotOptimize(out.data());
    }
    realTime(state, 1.0);
}
BENCHMARK(pcmWriter)->Arg(0)->Arg(1);

void copyBaseline(benchmark::State &state)
{
    const std::vector<double> in = tone(44100 * 2);
    std::vector<double> out(in.size());
    for (auto _ : state) {
        std::memcpy(out.data(), in.data(), in.size() * sizeof(double));
        benchmark::DoNotOptimize(out.data());
        benchmark::ClobberMemory();
    }
    realTime(state, 1.0);
}
BENCHMARK(copyBaseline);

/// Argument: rate. One call of line() with the samples of a thirtieth of a second.
void spectrumLine(benchmark::State &state)
{
    const auto rateHz = static_cast<int>(state.range(0));
    const std::vector<double> pcm = tone(static_cast<size_t>(rateHz) * 2);
    SpectrumAnalyser analyser(rateHz);
    analyser.add(pcm.data(), static_cast<size_t>(rateHz), 2);
    for (auto _ : state) {
        analyser.add(pcm.data(), static_cast<size_t>(rateHz / 30), 2);
        benchmark::DoNotOptimize(analyser.line());
    }
}
BENCHMARK(spectrumLine)->Arg(44100)->Arg(192000)->Arg(352800)->Unit(benchmark::kMicrosecond);

void waveformLine(benchmark::State &state)
{
    const std::vector<double> pcm = tone(44100 * 2);
    WaveformBuckets buckets(44100);
    buckets.add(pcm.data(), 44100, 2);
    for (auto _ : state) {
        buckets.add(pcm.data(), 44100 / 30, 2);
        benchmark::DoNotOptimize(buckets.line());
    }
}
BENCHMARK(waveformLine)->Unit(benchmark::kMicrosecond);

} // namespace

BENCHMARK_MAIN();
