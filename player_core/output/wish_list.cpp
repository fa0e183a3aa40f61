#include "player_core/output/wish_list.h"

#include <algorithm>
#include <span>

namespace kelp_core {
namespace {

constexpr int maxDecodedRateHz = 352800;
constexpr int minDecodedRateHz = 44100;
constexpr int minDecimation = 8;
constexpr int dsd64RateHz = 3072000; // of the 48 kHz family, the higher of the two
constexpr int dopBitsPerFrame = 16;
constexpr int dopValidBits = 24;

struct EncodingBits
{
    SampleEncoding encoding;
    int validBits; ///< integer bits carried without loss
};

// Each row holds all encodings: those that carry the depth exactly, smallest first, then the losing ones from
// the best down. A float sample of 32 bits has 24 significant ones.
constexpr EncodingBits forDepth16[] = {{SampleEncoding::s16, 16},
                                       {SampleEncoding::s24in3, 24},
                                       {SampleEncoding::s32, 32},
                                       {SampleEncoding::s24in4, 24},
                                       {SampleEncoding::f32, 24}};
constexpr EncodingBits forDepth24[] = {{SampleEncoding::s24in3, 24},
                                       {SampleEncoding::s32, 32},
                                       {SampleEncoding::s24in4, 24},
                                       {SampleEncoding::f32, 24},
                                       {SampleEncoding::s16, 16}};
constexpr EncodingBits forDepth32[] = {{SampleEncoding::s32, 32},
                                       {SampleEncoding::f32, 24},
                                       {SampleEncoding::s24in3, 24},
                                       {SampleEncoding::s24in4, 24},
                                       {SampleEncoding::s16, 16}};
constexpr EncodingBits forFloat[] = {{SampleEncoding::f32, 32},
                                     {SampleEncoding::s32, 32},
                                     {SampleEncoding::s24in3, 24},
                                     {SampleEncoding::s24in4, 24},
                                     {SampleEncoding::s16, 16}};
constexpr SampleEncoding nativeEncodings[] = {SampleEncoding::dsdU32be, SampleEncoding::dsdU32le,
                                              SampleEncoding::dsdU16be, SampleEncoding::dsdU16le,
                                              SampleEncoding::dsdU8};
constexpr SampleEncoding dopEncodings[] = {SampleEncoding::s24in3, SampleEncoding::s32,
                                           SampleEncoding::s24in4};
constexpr int commonRatesHz[] = {44100, 48000, 88200, 96000, 176400, 192000, 352800, 384000, 705600, 768000};

std::span<const EncodingBits> encodingsFor(int depthBits, bool isFloat)
{
    if (isFloat)
        return forFloat;
    if (depthBits <= 16)
        return forDepth16;
    return depthBits <= 24 ? std::span(forDepth24) : std::span(forDepth32);
}

/// The stream's own number of channels; and since many converters have nothing but a pair, one channel goes
/// out on both of it where it cannot go out alone.
std::vector<int> channelCounts(const StreamFormat &stream)
{
    return stream.channels == 1 ? std::vector<int>{1, 2} : std::vector<int>{stream.channels};
}

void addPcm(WishPlan &plan, const OutputRequest &request, int rateHz, int depthBits, bool isFloat,
            bool otherRate)
{
    for (const int channels : channelCounts(request.stream)) {
        for (const EncodingBits &row : encodingsFor(depthBits, isFloat)) {
            Wish wish;
            wish.wire = {Carrier::pcm, row.encoding, rateHz, channels, row.validBits};
            wish.pcmRateHz = rateHz;
            wish.losesBits = row.validBits < depthBits;
            wish.otherRate = otherRate;
            plan.wishes.push_back(wish);
        }
    }
}

void addNative(WishPlan &plan, const StreamFormat &stream)
{
    for (const int channels : channelCounts(stream)) {
        for (SampleEncoding encoding : nativeEncodings) {
            const int bits = bytesPerSample(encoding) * 8;
            if (stream.rateHz % bits == 0)
                plan.wishes.push_back(
                    {{Carrier::nativeDsd, encoding, stream.rateHz / bits, channels, 1}, 0, false, false});
        }
    }
}

void addDop(WishPlan &plan, const StreamFormat &stream)
{
    if (stream.rateHz % dopBitsPerFrame != 0)
        return;
    for (const int channels : channelCounts(stream))
        for (SampleEncoding encoding : dopEncodings)
            plan.wishes.push_back(
                {{Carrier::dop, encoding, stream.rateHz / dopBitsPerFrame, channels, dopValidBits},
                 0,
                 false,
                 false});
}

/// Adds what may carry DSD as it is, or notes why nothing may.
void addDirectDsd(WishPlan &plan, const OutputRequest &request, const DeviceTraits &traits)
{
    if (request.forcePcm)
        return;
    if (request.path == PathPolicy::shared) {
        plan.notes.push_back(
            "DSD is decoded to PCM, because the shared path was chosen and mixing or scaling "
            "would turn DSD into noise.");
        return;
    }
    if (!traits.untouched) {
        plan.notes.push_back("DSD is decoded to PCM, because something stands between the player and the "
                             "converter that could change the samples.");
        return;
    }
    if (request.dop != DopPolicy::force)
        addNative(plan, request.stream);
    if (request.dop == DopPolicy::force || (request.dop == DopPolicy::automatic && traits.dsdMarked)) {
        addDop(plan, request.stream);
    } else if (request.dop == DopPolicy::automatic) {
        plan.notes.push_back("DoP is not tried, because the device is not known to decode it; mark it in "
                             "player.conf or choose the DoP mode force.");
    }
}

std::vector<int> otherRates(int ownHz)
{
    std::vector<int> same;
    std::vector<int> rest;
    for (int rate : commonRatesHz) {
        if (rate == ownHz)
            continue;
        const bool related = rate % ownHz == 0 || ownHz % rate == 0;
        (related ? same : rest).push_back(rate);
    }
    // The nearest rate above keeps the whole band at the least cost; below only when nothing above is taken.
    const auto nearestAbove = [ownHz](int a, int b) {
        if ((a > ownHz) != (b > ownHz))
            return a > ownHz;
        return a > ownHz ? a < b : a > b;
    };
    std::sort(same.begin(), same.end(), nearestAbove);
    std::sort(rest.begin(), rest.end(), nearestAbove);
    same.insert(same.end(), rest.begin(), rest.end());
    return same;
}

} // namespace

std::vector<int> decodedRates(int dsdRateHz, int serverRateHz)
{
    std::vector<int> rates;
    for (int ratio = minDecimation; ratio <= dsdRateHz / minDecodedRateHz; ratio *= 2)
        if (dsdRateHz % ratio == 0 && dsdRateHz / ratio <= maxDecodedRateHz)
            rates.push_back(dsdRateHz / ratio);
    if (serverRateHz > 0) {
        const auto fits = std::find_if(rates.rbegin(), rates.rend(),
                                       [serverRateHz](int rate) { return rate >= serverRateHz; });
        if (fits != rates.rend())
            std::rotate(rates.begin(), fits.base() - 1, fits.base());
    } else if (dsdRateHz <= dsd64RateHz && rates.size() >= 2 && rates[0] > 192000) {
        std::swap(rates[0], rates[1]);
    }
    return rates;
}

WishPlan planWishes(const OutputRequest &request, const DeviceTraits &traits)
{
    WishPlan plan;
    const StreamFormat &stream = request.stream;
    const bool exclusive = request.path == PathPolicy::exclusive;
    if (stream.isDsd()) {
        addDirectDsd(plan, request, traits);
        for (int rate : decodedRates(stream.rateHz, traits.serverRateHz))
            addPcm(plan, request, rate, request.pcmFloat ? 32 : request.pcmBits, request.pcmFloat, false);
    } else {
        if (request.allowResample && traits.serverRateHz > 0 && traits.serverRateHz != stream.rateHz)
            addPcm(plan, request, traits.serverRateHz, stream.depthBits, stream.isFloat, true);
        addPcm(plan, request, stream.rateHz, stream.depthBits, stream.isFloat, false);
        if (request.allowResample && traits.serverRateHz == 0 && !exclusive)
            for (int rate : otherRates(stream.rateHz))
                addPcm(plan, request, rate, stream.depthBits, stream.isFloat, true);
    }
    // The depth of PCM made from DSD is ours to choose unless the listener chose it.
    if (exclusive && (!stream.isDsd() || request.pcmBitsChosen))
        std::erase_if(plan.wishes, [](const Wish &wish) { return wish.losesBits; });
    std::stable_partition(plan.wishes.begin(), plan.wishes.end(),
                          [](const Wish &wish) { return !wish.losesBits; });
    return plan;
}

} // namespace kelp_core
