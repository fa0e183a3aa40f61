#include "player_core/dsp/crossfade.h"

#include <cmath>
#include <vector>

#include <gtest/gtest.h>

using namespace kelp_core;

TEST(Crossfade, PowersAddToOne)
{
    constexpr size_t total = 1000;
    const std::vector<double> one(total, 1.0);
    const std::vector<double> none(total, 0.0);
    std::vector<double> from(total);
    std::vector<double> to(total);
    crossfade(one.data(), none.data(), from.data(), total, 1, 0, total);
    crossfade(none.data(), one.data(), to.data(), total, 1, 0, total);
    for (size_t i = 0; i < total; ++i) {
        EXPECT_NEAR(from[i] * from[i] + to[i] * to[i], 1.0, 1e-12);
        EXPECT_NEAR(from[i], to[total - 1 - i], 1e-12);
    }
    EXPECT_NEAR(from[0], 1.0, 1e-5);
    EXPECT_NEAR(to[0], 0.0, 1e-3);
}

TEST(Crossfade, PiecesEqualTheWholeAndMayWorkInPlace)
{
    constexpr size_t total = 333;
    std::vector<double> from(total * 2);
    std::vector<double> to(total * 2);
    for (size_t i = 0; i < from.size(); ++i) {
        from[i] = std::sin(0.1 * static_cast<double>(i));
        to[i] = std::cos(0.07 * static_cast<double>(i));
    }
    std::vector<double> whole(total * 2);
    crossfade(from.data(), to.data(), whole.data(), total, 2, 0, total);
    for (size_t at = 0; at < total; at += 37) {
        const size_t frames = std::min<size_t>(37, total - at);
        crossfade(from.data() + 2 * at, to.data() + 2 * at, from.data() + 2 * at, frames, 2, at, total);
    }
    EXPECT_EQ(from, whole);
}

TEST(Crossfade, BehindTheFadeOnlyTheNewTrackIsLeft)
{
    const std::vector<double> from(4, 0.7);
    const std::vector<double> to(4, -0.3);
    std::vector<double> out(4);
    crossfade(from.data(), to.data(), out.data(), 4, 1, 10, 10);
    EXPECT_EQ(out, to);
    crossfade(from.data(), to.data(), out.data(), 4, 1, 0, 0);
    EXPECT_EQ(out, to);
}

TEST(Fade, GoesSmoothlyFromOneEndToTheOther)
{
    const size_t total = declickFrames(44100);
    EXPECT_EQ(total, 220u);
    std::vector<double> in(total + 10, 1.0);
    std::vector<double> out(total + 10, 1.0);
    fade(Fade::in, in.data(), in.size(), 1, 0, total);
    fade(Fade::out, out.data(), 100, 1, 0, total);
    fade(Fade::out, out.data() + 100, out.size() - 100, 1, 100, total);
    EXPECT_LT(in[0], 1e-4);
    for (size_t i = 0; i < in.size(); ++i)
        EXPECT_NEAR(in[i] + out[i], 1.0, 1e-12);
    for (size_t i = 1; i < in.size(); ++i) {
        EXPECT_GE(in[i], in[i - 1]);
        EXPECT_LT(in[i] - in[i - 1], 0.01);
    }
    EXPECT_EQ(in.back(), 1.0);
    EXPECT_EQ(out.back(), 0.0);
    EXPECT_EQ(declickFrames(10), 1u);
}
