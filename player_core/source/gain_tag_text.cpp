#include "player_core/source/gain_tag_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

extern "C" {
#include <libavformat/avformat.h>
}

namespace kelp_core {
namespace {

constexpr double mostDb = 60;
constexpr double mostPeak = 64;
// ReplayGain 2 aims at −18 LUFS, RFC 7845 at −23.
constexpr double r128OffsetDb = 5;
constexpr size_t longestValue = 64;

/// A number at the start of a text, with a plus allowed; what stands behind it (" dB") is a unit.
std::optional<double> leadingNumber(std::string_view text)
{
    if (text.size() > longestValue)
        return {};
    const size_t first = text.find_first_not_of(" \t+");
    if (first == std::string_view::npos)
        return {};
    text.remove_prefix(first);
    // Taggers of some countries write a comma.
    std::string plain(text);
    std::replace(plain.begin(), plain.end(), ',', '.');
    double value = 0;
    const auto [end, error] = std::from_chars(plain.data(), plain.data() + plain.size(), value);
    if (error != std::errc() || !std::isfinite(value))
        return {};
    const std::string_view unit(end, static_cast<size_t>(plain.data() + plain.size() - end));
    const bool known = unit.empty() || unit.front() == ' ' || unit.front() == 'd' || unit.front() == 'D';
    return known ? std::optional(value) : std::nullopt;
}

std::optional<double> gainDb(std::string_view text)
{
    const auto db = leadingNumber(text);
    return db && std::abs(*db) <= mostDb ? db : std::nullopt;
}

std::optional<double> r128Db(std::string_view text)
{
    const auto steps = leadingNumber(text);
    const double db = steps.value_or(0) / 256 + r128OffsetDb;
    return steps && std::abs(db) <= mostDb ? std::optional(db) : std::nullopt;
}

std::optional<double> peak(std::string_view text)
{
    const auto value = leadingNumber(text);
    return value && *value > 0 && *value <= mostPeak ? value : std::nullopt;
}

struct Known
{
    std::string_view key;
    std::optional<double> GainTags::*field;
    std::optional<double> (*read)(std::string_view);
};

constexpr Known replayGainKeys[] = {
    {"replaygain_track_gain", &GainTags::trackGainDb, gainDb},
    {"replaygain_album_gain", &GainTags::albumGainDb, gainDb},
    {"replaygain_track_peak", &GainTags::trackPeak, peak},
    {"replaygain_album_peak", &GainTags::albumPeak, peak},
};

constexpr Known r128Keys[] = {
    {"r128_track_gain", &GainTags::trackGainDb, r128Db},
    {"r128_album_gain", &GainTags::albumGainDb, r128Db},
};

bool sameKey(std::string_view key, std::string_view lower)
{
    return std::equal(key.begin(), key.end(), lower.begin(), lower.end(),
                      [](char a, char b) { return (a >= 'A' && a <= 'Z' ? char(a + 32) : a) == b; });
}

template<size_t n>
void take(const Known (&known)[n], std::string_view key, std::string_view value, GainTags &tags)
{
    for (const Known &one : known) {
        if (sameKey(key, one.key) && !(tags.*one.field))
            tags.*one.field = one.read(value);
    }
}

template<size_t n>
void takeAll(const Known (&known)[n], const AVDictionary *dictionary, GainTags &tags)
{
    const AVDictionaryEntry *entry = nullptr;
    while ((entry = av_dict_get(dictionary, "", entry, AV_DICT_IGNORE_SUFFIX)))
        take(known, entry->key, entry->value, tags);
}

} // namespace

void takeGainTag(std::string_view key, std::string_view value, GainTags &tags)
{
    take(replayGainKeys, key, value, tags);
    take(r128Keys, key, value, tags);
}

GainTags gainTagsOf(const AVFormatContext &container, int audioStream)
{
    GainTags tags;
    const AVDictionary *stream = audioStream >= 0 && audioStream < static_cast<int>(container.nb_streams)
                                     ? container.streams[audioStream]->metadata
                                     : nullptr;
    takeAll(replayGainKeys, container.metadata, tags);
    takeAll(replayGainKeys, stream, tags);
    takeAll(r128Keys, container.metadata, tags);
    takeAll(r128Keys, stream, tags);
    return tags;
}

} // namespace kelp_core
