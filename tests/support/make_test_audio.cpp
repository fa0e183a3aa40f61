// make_test_audio KIND OUT [key=value …]: writes a small file of known samples, for scripts.

#include "tests/support/byte_writer.h"
#include "tests/support/cue_maker.h"
#include "tests/support/dsd_file_maker.h"
#include "tests/support/id3_maker.h"
#include "tests/support/packed_maker.h"
#include "tests/support/sacd_maker.h"
#include "tests/support/wav_maker.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>

namespace {

using namespace kelp_test;

using Values = std::map<std::string, std::string>;

constexpr const char *usage =
    "usage: make_test_audio KIND OUT [key=value ...]\n"
    "  KIND  wav wavx rf64 w64 aiff aifc flac m4a wv tta dts dsf dff dst dststored wsd cue iso\n"
    "  rate=44100 (DSD: 2822400)  bits=16 (8 ... 32; f32, f64: float)  channels=2  seconds=1  frames=N  "
    "seed=1\n"
    "  signal=ramp|sine|sweep|noise|silence   ramp: every frame differs from its neighbours\n"
    "  title=... artist=... album=...   cover=yes   raw=FILE: the bare samples, interleaved, lowest byte "
    "first\n"
    "  cue: file=NAME  tracks=3  seconds=1 (of each track)  performer=...\n"
    "  iso: sector=2048|2064  coding=plain14|plain16|dst|dststored  areas=stereo|multi|both  tracks=3\n"
    "    seconds=1 (of each track)  charset=1 ... 7  title=...  track=... (of all titles; a number follows)\n"
    "    fuzzseed=FILE: the same as an input of the fuzz target sacd_image\n";

std::string text(const Values &values, const char *key, const char *otherwise)
{
    const auto found = values.find(key);
    return found == values.end() ? otherwise : found->second;
}

int whole(const Values &values, const char *key, int otherwise)
{
    const auto found = values.find(key);
    return found == values.end() ? otherwise : std::atoi(found->second.c_str());
}

size_t frameCount(const Values &values, double framesPerSecond)
{
    if (values.contains("frames"))
        return static_cast<size_t>(std::atoll(values.at("frames").c_str()));
    return static_cast<size_t>(
        std::llround(std::atof(text(values, "seconds", "1").c_str()) * framesPerSecond));
}

FileTags tagsOf(const Values &values)
{
    FileTags tags;
    for (const char *key : {"title", "artist", "album", "genre", "date", "track"}) {
        if (values.contains(key))
            tags.words.emplace_back(key, values.at(key));
    }
    if (text(values, "cover", "no") == "yes")
        tags.coverPng = smallPng();
    return tags;
}

std::vector<uint8_t> id3Of(const FileTags &tags)
{
    static const std::map<std::string, std::string> ids{{"title", "TIT2"}, {"artist", "TPE1"},
                                                        {"album", "TALB"}, {"genre", "TCON"},
                                                        {"date", "TDRC"},  {"track", "TRCK"}};
    if (tags.words.empty() && tags.coverPng.empty())
        return {};
    Id3Options options;
    options.version = 4;
    for (const auto &[key, value] : tags.words)
        options.texts.emplace_back(ids.at(key), value);
    options.frontCover = tags.coverPng;
    return id3Bytes(options);
}

PcmSignal pcmOf(const Values &values)
{
    SignalRecipe recipe;
    const std::string bits = text(values, "bits", "16");
    recipe.isFloat = bits[0] == 'f';
    recipe.depthBits = std::atoi(bits.c_str() + (recipe.isFloat ? 1 : 0));
    recipe.rateHz = whole(values, "rate", 44100);
    recipe.channels = whole(values, "channels", 2);
    recipe.seed = static_cast<uint32_t>(whole(values, "seed", 1));
    recipe.frames = frameCount(values, recipe.rateHz);
    shapeOfWord(text(values, "signal", "ramp"), recipe.shape);
    return makeSignal(recipe);
}

DsdSignal dsdOf(const Values &values)
{
    SignalShape shape = SignalShape::sine;
    shapeOfWord(text(values, "signal", "sine"), shape);
    const int rate = whole(values, "rate", 2822400);
    return makeDsd(shape, frameCount(values, rate / 8.0), rate, whole(values, "channels", 2),
                   static_cast<uint32_t>(whole(values, "seed", 1)));
}

/// The bytes of the kinds that are made without an encoder of FFmpeg's; raw gets the bare samples.
std::vector<uint8_t> plainBytes(const std::string &kind, const Values &values, std::vector<uint8_t> &raw)
{
    const std::vector<uint8_t> id3 = id3Of(tagsOf(values));
    static const std::map<std::string, WavForm> wavs{{"wav", WavForm::plain},
                                                     {"wavx", WavForm::extensible},
                                                     {"rf64", WavForm::rf64},
                                                     {"w64", WavForm::w64}};
    static constexpr std::array dsdKinds{"dsf", "dff", "dst", "dststored", "wsd"};
    if (std::find(dsdKinds.begin(), dsdKinds.end(), kind) != dsdKinds.end()) {
        const DsdSignal signal = dsdOf(values);
        raw = signal.bytes;
        if (kind == "dsf")
            return dsfBytes(signal, {.id3 = id3});
        if (kind == "wsd")
            return wsdBytes(signal);
        return dffBytes(signal,
                        kind == "dff"   ? DstKind::none
                        : kind == "dst" ? DstKind::coded
                                        : DstKind::stored,
                        id3);
    }
    const PcmSignal signal = pcmOf(values);
    raw = rawBytes(signal);
    if (const auto wav = wavs.find(kind); wav != wavs.end())
        return wavBytes(signal, {.form = wav->second, .id3 = id3});
    return aiffBytes(signal, kind == "aifc", id3);
}

/// The sectors that are not empty, each as its number, its length in lines of 16 bytes, and its bytes.
std::vector<uint8_t> fuzzSeed(const SacdImageMade &image)
{
    constexpr size_t sectorBytes = 2048, lineBytes = 16;
    ByteWriter out;
    const auto sectors = static_cast<int>(image.bytes.size() / static_cast<size_t>(image.sectorBytes));
    for (int sector = 0; sector < sectors; ++sector) {
        const auto begin = image.bytes.begin() + static_cast<std::ptrdiff_t>(image.at(sector));
        std::vector<uint8_t> bytes(begin, begin + sectorBytes);
        while (!bytes.empty() && bytes.back() == 0)
            bytes.pop_back();
        if (bytes.empty())
            continue;
        bytes.resize((bytes.size() + lineBytes - 1) / lineBytes * lineBytes);
        out.big(static_cast<uint64_t>(sector), 2).big(bytes.size() / lineBytes, 1).append(bytes);
    }
    return out.bytes;
}

/// An SACD image; raw gets the samples of the area that a player plays.
std::vector<uint8_t> isoBytes(const Values &values, std::vector<uint8_t> &raw)
{
    static const std::map<std::string, SacdForm> forms{{"plain14", SacdForm::plain14},
                                                       {"plain16", SacdForm::plain16},
                                                       {"dst", SacdForm::dstCoded},
                                                       {"dststored", SacdForm::dstStored}};
    const auto form = forms.find(text(values, "coding", "plain14"));
    SignalShape shape = SignalShape::sine;
    shapeOfWord(text(values, "signal", "sine"), shape);
    const std::string areas = text(values, "areas", "stereo");
    const auto seed = static_cast<uint32_t>(whole(values, "seed", 1));
    SacdRecipe recipe;
    recipe.sectorBytes = whole(values, "sector", 2048);
    recipe.characterSet = whole(values, "charset", 2);
    recipe.title = text(values, "title", "Album");
    const auto add = [&](int channels, uint32_t areaSeed) {
        recipe.areas.push_back(plainArea(form == forms.end() ? SacdForm::plain14 : form->second,
                                         whole(values, "tracks", 3), static_cast<int>(frameCount(values, 75)),
                                         channels, areaSeed, shape, text(values, "track", "Track")));
    };
    if (areas != "multi")
        add(2, seed);
    if (areas != "stereo")
        add(whole(values, "channels", 6), seed + 1);
    raw = recipe.areas.front().signal.bytes;
    const SacdImageMade image = makeSacd(recipe);
    if (values.contains("fuzzseed"))
        writeFile(values.at("fuzzseed"), fuzzSeed(image));
    return image.bytes;
}

/// Writes the file of a kind. "" or what failed.
std::string make(const std::string &kind, const std::string &path, const Values &values)
{
    static constexpr std::array packedKinds{"flac", "m4a", "wv", "tta", "dts"};
    static constexpr std::array plainKinds{"wav", "wavx", "rf64", "w64", "aiff",     "aifc",
                                           "dsf", "dff",  "dst",  "wsd", "dststored"};
    std::vector<uint8_t> raw;
    if (kind == "cue") {
        writeFile(path, cueText({.file = text(values, "file", "album.wav"),
                                 .title = text(values, "title", "Album"),
                                 .performer = text(values, "performer", "Performer"),
                                 .tracks = whole(values, "tracks", 3),
                                 .trackCdFrames = static_cast<int>(frameCount(values, 75))}));
    } else if (kind == "iso") {
        writeFile(path, isoBytes(values, raw));
    } else if (std::find(packedKinds.begin(), packedKinds.end(), kind) != packedKinds.end()) {
        const PcmSignal signal = pcmOf(values);
        if (std::string error = writePacked(kind, path, signal, tagsOf(values)); !error.empty())
            return error;
        raw = rawBytes(signal);
    } else if (std::find(plainKinds.begin(), plainKinds.end(), kind) != plainKinds.end()) {
        writeFile(path, plainBytes(kind, values, raw));
    } else {
        return "no kind " + kind;
    }
    if (values.contains("raw"))
        writeFile(values.at("raw"), raw);
    return {};
}

} // namespace

int main(int argc, char **argv)
{
    Values values;
    for (int i = 3; i < argc; ++i) {
        const std::string argument = argv[i];
        const size_t equals = argument.find('=');
        if (equals == std::string::npos) {
            std::fputs(usage, stderr);
            return 2;
        }
        values[argument.substr(0, equals)] = argument.substr(equals + 1);
    }
    if (argc < 3) {
        std::fputs(usage, stderr);
        return 2;
    }
    const std::string error = make(argv[1], argv[2], values);
    if (error.empty())
        return 0;
    std::fprintf(stderr, "make_test_audio: %s\n", error.c_str());
    return 1;
}
