#include "player_core/output/wish_list.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

using namespace kelp_core;
using ::testing::ElementsAre;

namespace {

OutputRequest pcmRequest(int rateHz, int depthBits, bool isFloat = false)
{
    OutputRequest request;
    request.stream = {SignalKind::pcm, rateHz, 2, depthBits, isFloat};
    return request;
}

OutputRequest dsdRequest(int rateHz = 2822400)
{
    OutputRequest request;
    request.stream = {SignalKind::dsd, rateHz, 2, 1, false};
    return request;
}

std::vector<SampleEncoding> encodings(const WishPlan &plan)
{
    std::vector<SampleEncoding> result;
    for (const Wish &wish : plan.wishes)
        result.push_back(wish.wire.encoding);
    return result;
}

bool holds(const WishPlan &plan, Carrier carrier)
{
    return std::any_of(plan.wishes.begin(), plan.wishes.end(),
                       [carrier](const Wish &wish) { return wish.wire.carrier == carrier; });
}

const DeviceTraits card{true, false, 0};
const DeviceTraits markedCard{true, true, 0};
const DeviceTraits mixer{false, true, 48000};

TEST(WishList, PcmKeepsRateAndAllBits)
{
    using enum SampleEncoding;
    const struct
    {
        int depthBits;
        bool isFloat;
        std::vector<SampleEncoding> order;
        size_t exact;
    } rows[] = {
        {8, false, {s16, s24in3, s32, s24in4, f32}, 5},  {16, false, {s16, s24in3, s32, s24in4, f32}, 5},
        {20, false, {s24in3, s32, s24in4, f32, s16}, 4}, {24, false, {s24in3, s32, s24in4, f32, s16}, 4},
        {32, false, {s32, f32, s24in3, s24in4, s16}, 1}, {32, true, {f32, s32, s24in3, s24in4, s16}, 2}};
    for (const auto &row : rows) {
        const WishPlan plan = planWishes(pcmRequest(44100, row.depthBits, row.isFloat), card);
        EXPECT_EQ(encodings(plan), row.order) << row.depthBits;
        for (size_t i = 0; i < plan.wishes.size(); ++i) {
            EXPECT_EQ(plan.wishes[i].losesBits, i >= row.exact) << row.depthBits << " wish " << i;
            EXPECT_EQ(plan.wishes[i].pcmRateHz, 44100);
            EXPECT_EQ(plan.wishes[i].wire.frameRateHz, 44100);
            EXPECT_EQ(plan.wishes[i].wire.channels, 2);
        }
    }
}

TEST(WishList, OneChannelGoesOutOnAPairWhereItCannotGoAlone)
{
    using enum SampleEncoding;
    OutputRequest request = pcmRequest(44100, 24);
    request.stream.channels = 1;
    request.path = PathPolicy::exclusive;
    std::vector<int> channels;
    for (const Wish &wish : planWishes(request, card).wishes)
        channels.push_back(wish.wire.channels);
    EXPECT_THAT(channels, ElementsAre(1, 1, 1, 1, 2, 2, 2, 2)) << "alone wherever that is taken";

    OutputRequest dsd = dsdRequest();
    dsd.stream.channels = 1;
    const WishPlan plan = planWishes(dsd, markedCard);
    EXPECT_EQ(plan.wishes.front().wire.channels, 1);
    const auto pair = std::find_if(plan.wishes.begin(), plan.wishes.end(),
                                   [](const Wish &wish) { return wish.wire.channels == 2; });
    ASSERT_NE(pair, plan.wishes.end());
    EXPECT_EQ(pair->wire.carrier, Carrier::nativeDsd) << "before anything that is not its own bits";

    request.stream.channels = 6;
    for (const Wish &wish : planWishes(request, card).wishes)
        EXPECT_EQ(wish.wire.channels, 6) << "more than two are never folded here";
}

TEST(WishList, ExclusiveNeverLosesBitsOrChangesTheRate)
{
    OutputRequest request = pcmRequest(96000, 24);
    request.path = PathPolicy::exclusive;
    request.allowResample = true;
    const WishPlan plan = planWishes(request, card);
    EXPECT_EQ(plan.wishes.size(), 4u);
    for (const Wish &wish : plan.wishes) {
        EXPECT_FALSE(wish.losesBits);
        EXPECT_EQ(wish.pcmRateHz, 96000);
    }
}

TEST(WishList, ResamplingOffersTheServersRateFirst)
{
    OutputRequest request = pcmRequest(44100, 16);
    EXPECT_EQ(planWishes(request, mixer).wishes.front().pcmRateHz, 44100);
    request.allowResample = true;
    const WishPlan plan = planWishes(request, mixer);
    EXPECT_EQ(plan.wishes.front().pcmRateHz, 48000);
    EXPECT_TRUE(plan.wishes.front().otherRate);
    EXPECT_EQ(plan.wishes[5].pcmRateHz, 44100);
}

TEST(WishList, ResamplingOnACardKeepsTheFamilyAndPrefersMore)
{
    OutputRequest request = pcmRequest(44100, 16);
    request.allowResample = true;
    std::vector<int> rates;
    for (const Wish &wish : planWishes(request, card).wishes)
        if (rates.empty() || rates.back() != wish.pcmRateHz)
            rates.push_back(wish.pcmRateHz);
    EXPECT_THAT(rates,
                ElementsAre(44100, 88200, 176400, 352800, 705600, 48000, 96000, 192000, 384000, 768000));
}

TEST(WishList, DsdGoesNativeThenPcmOnAnUnmarkedCard)
{
    using enum SampleEncoding;
    const WishPlan plan = planWishes(dsdRequest(), card);
    EXPECT_FALSE(holds(plan, Carrier::dop));
    EXPECT_EQ(plan.notes.size(), 1u);
    const std::vector<SampleEncoding> order = encodings(plan);
    EXPECT_EQ(std::vector(order.begin(), order.begin() + 5),
              (std::vector{dsdU32be, dsdU32le, dsdU16be, dsdU16le, dsdU8}));
    EXPECT_EQ(plan.wishes[0].wire.frameRateHz, 88200);
    EXPECT_EQ(plan.wishes[2].wire.frameRateHz, 176400);
    EXPECT_EQ(plan.wishes[4].wire.frameRateHz, 352800);
    EXPECT_EQ(plan.wishes[0].pcmRateHz, 0);
    EXPECT_EQ(plan.wishes[5].pcmRateHz, 176400);
    EXPECT_EQ(plan.wishes[5].wire.encoding, s24in3);
}

TEST(WishList, DopComesWhereForcedOrKnownToWork)
{
    OutputRequest request = dsdRequest(5644800);
    const WishPlan known = planWishes(request, markedCard);
    EXPECT_EQ(known.wishes[5].wire, (WireFormat{Carrier::dop, SampleEncoding::s24in3, 352800, 2, 24}));
    EXPECT_TRUE(known.notes.empty());
    request.dop = DopPolicy::force;
    const WishPlan forced = planWishes(request, card);
    EXPECT_EQ(forced.wishes.front().wire.carrier, Carrier::dop);
    EXPECT_FALSE(holds(forced, Carrier::nativeDsd));
    request.dop = DopPolicy::native;
    const WishPlan native = planWishes(request, markedCard);
    EXPECT_TRUE(holds(native, Carrier::nativeDsd));
    EXPECT_FALSE(holds(native, Carrier::dop));
    EXPECT_TRUE(holds(native, Carrier::pcm)) << "PCM always stays as the last resort";
}

// The rule that protects loudspeakers: whatever is asked for, DSD in disguise never takes a path on which it
// could be mixed, resampled or scaled.
TEST(WishList, NoDsdEverOnATouchedOrSharedPath)
{
    for (PathPolicy path : {PathPolicy::automatic, PathPolicy::exclusive, PathPolicy::shared}) {
        for (DopPolicy dop : {DopPolicy::automatic, DopPolicy::force, DopPolicy::native}) {
            for (bool untouched : {false, true}) {
                OutputRequest request = dsdRequest();
                request.path = path;
                request.dop = dop;
                const WishPlan plan = planWishes(request, {untouched, true, untouched ? 0 : 48000});
                const bool direct = holds(plan, Carrier::dop) || holds(plan, Carrier::nativeDsd);
                EXPECT_EQ(direct, untouched && path != PathPolicy::shared);
                EXPECT_TRUE(holds(plan, Carrier::pcm));
                EXPECT_EQ(plan.notes.empty(), direct);
            }
        }
    }
}

TEST(WishList, DecodingCanBeForced)
{
    OutputRequest request = dsdRequest();
    request.forcePcm = true;
    request.dop = DopPolicy::force;
    const WishPlan plan = planWishes(request, markedCard);
    EXPECT_FALSE(holds(plan, Carrier::dop));
    EXPECT_FALSE(holds(plan, Carrier::nativeDsd));
}

TEST(WishList, DepthOfDecodedDsdFollowsTheChoice)
{
    OutputRequest request = dsdRequest();
    request.forcePcm = true;
    request.pcmBits = 16;
    EXPECT_EQ(planWishes(request, card).wishes.front().wire.encoding, SampleEncoding::s16);
    request.pcmBits = 32;
    EXPECT_EQ(planWishes(request, card).wishes.front().wire.encoding, SampleEncoding::s32);
    request.pcmFloat = true;
    EXPECT_EQ(planWishes(request, card).wishes.front().wire.encoding, SampleEncoding::f32);
}

TEST(WishList, ExclusiveMayDecodeToFewerBitsUnlessTheyWereChosen)
{
    const auto losing = [](const WishPlan &plan) {
        return std::any_of(plan.wishes.begin(), plan.wishes.end(), [](const Wish &w) { return w.losesBits; });
    };
    OutputRequest request = dsdRequest();
    request.path = PathPolicy::exclusive;
    EXPECT_TRUE(losing(planWishes(request, card)));
    request.pcmBitsChosen = true;
    EXPECT_FALSE(losing(planWishes(request, card)));
}

TEST(WishList, DecodedRatesSuitTheDevice)
{
    EXPECT_THAT(decodedRates(2822400, 0), ElementsAre(176400, 352800, 88200, 44100));
    EXPECT_THAT(decodedRates(5644800, 0), ElementsAre(352800, 176400, 88200, 44100));
    EXPECT_THAT(decodedRates(22579200, 0), ElementsAre(352800, 176400, 88200, 44100));
    EXPECT_THAT(decodedRates(3072000, 0), ElementsAre(192000, 96000, 48000));
    EXPECT_THAT(decodedRates(2822400, 44100), ElementsAre(44100, 352800, 176400, 88200));
    EXPECT_THAT(decodedRates(2822400, 48000), ElementsAre(88200, 352800, 176400, 44100));
    EXPECT_THAT(decodedRates(2822400, 768000), ElementsAre(352800, 176400, 88200, 44100));
}

} // namespace
