// What runs on the audio thread, and what the meters do per block, allocates nothing.

#include "allocation_counter.h"

#include "player_core/dsp/crossfade.h"
#include "player_core/dsp/meters.h"
#include "player_core/dsp/volume.h"
#include "player_core/dsp/wire_writer.h"

#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

namespace {

template<typename Work>
long allocationsOf(Work work)
{
    const long before = allocationsOfThisThread();
    work();
    return allocationsOfThisThread() - before;
}

} // namespace

TEST(Allocation, TheCounterCounts)
{
    EXPECT_GT(allocationsOf([] { std::vector<double>(1000).assign(2000, 1.0); }), 0);
}

TEST(Allocation, WritersAndGainsAllocateNothing)
{
    std::vector<double> pcm(2000, 0.25);
    const std::vector<uint8_t> dsd(2000, 0x55);
    std::vector<uint8_t> out(8000);
    PcmWriter pcmWriter({Carrier::pcm, SampleEncoding::s24in3, 44100, 2, 24});
    DsdWriter dsdWriter({Carrier::dop, SampleEncoding::s32, 176400, 2, 24});
    GainRamp ramp(44100);
    EXPECT_EQ(allocationsOf([&] {
                  pcmWriter.write(pcm.data(), 1000, out.data(), true);
                  pcmWriter.write(pcm.data(), 1000, out.data(), false);
                  dsdWriter.write(dsd.data(), 1000, out.data());
                  dsdWriter.silence(500, out.data());
                  ramp.setTarget(0.5);
                  ramp.apply(pcm.data(), 1000, 2);
                  crossfade(pcm.data(), pcm.data(), pcm.data(), 1000, 2, 0, 1000);
                  fade(Fade::out, pcm.data(), 1000, 2, 0, 220);
              }),
              0);
}

TEST(Allocation, MetersAllocateOnlyForTheirLines)
{
    const std::vector<double> pcm(100000, 0.25);
    LevelMeter level;
    SpectrumAnalyser spectrum(44100);
    WaveformBuckets waveform(44100);
    EXPECT_EQ(allocationsOf([&] {
                  for (size_t frames : {1u, 882u, 50000u}) {
                      level.add(pcm.data(), frames, 2);
                      spectrum.add(pcm.data(), frames, 2);
                      waveform.add(pcm.data(), frames, 2);
                  }
                  level.take();
              }),
              0);
    EXPECT_NE(spectrum.line(), "");
    EXPECT_NE(waveform.line(), "");
}
