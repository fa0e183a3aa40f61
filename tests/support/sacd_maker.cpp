#include "tests/support/sacd_maker.h"

#include "tests/support/byte_writer.h"
#include "tests/support/dst_encoder.h"

#include <algorithm>
#include <cstdlib>
#include <iconv.h>

namespace kelp_test {
namespace {

constexpr size_t sectorPayload = 2048;
constexpr size_t frameBytesOfAChannel = 4704;
constexpr int masterSectors[] = {510, 520, 530};
constexpr int firstTable = 540;
constexpr int tableSectors = 5; ///< head, two lists, codes and texts

using Bytes = std::vector<uint8_t>;

std::string encoded(const std::string &utf8, int characterSet)
{
    static constexpr const char *names[] = {"ISO-8859-1", "ASCII",  "ISO-8859-1", "CP932",
                                            "EUC-KR",     "GB2312", "BIG5",       "ISO-8859-1"};
    const iconv_t converter = iconv_open(names[characterSet & 7], "UTF-8");
    std::string from = utf8, to(utf8.size() * 2 + 8, '\0');
    char *in = from.data(), *out = to.data();
    size_t inLeft = from.size(), outLeft = to.size();
    iconv(converter, &in, &inLeft, &out, &outLeft);
    iconv_close(converter);
    to.resize(to.size() - outLeft);
    return to;
}

/// Writes over bytes of a sector.
void put(Bytes &sector, size_t at, const Bytes &bytes)
{
    std::copy(bytes.begin(), bytes.end(), sector.begin() + static_cast<std::ptrdiff_t>(at));
}
void put(Bytes &sector, size_t at, uint64_t value, int size)
{
    put(sector, at, ByteWriter().big(value, size).bytes);
}
void put(Bytes &sector, size_t at, const std::string &word)
{
    put(sector, at, Bytes(word.begin(), word.end()));
}

void putTime(Bytes &sector, size_t at, int frames)
{
    put(sector, at, static_cast<uint64_t>(frames / 75 / 60), 1);
    put(sector, at + 1, static_cast<uint64_t>(frames / 75 % 60), 1);
    put(sector, at + 2, static_cast<uint64_t>(frames % 75), 1);
}

Bytes named(const std::string &name)
{
    Bytes sector(sectorPayload, 0);
    put(sector, 0, name);
    return sector;
}

/// Frames as they go to the disc, packed where the form says so.
std::vector<Bytes> discFrames(const SacdAreaRecipe &area)
{
    const size_t size = frameBytesOfAChannel * static_cast<size_t>(area.signal.channels);
    std::vector<Bytes> frames;
    for (size_t at = 0; at + size <= area.signal.bytes.size(); at += size) {
        const auto begin = area.signal.bytes.begin() + static_cast<std::ptrdiff_t>(at);
        Bytes bits(begin, begin + static_cast<std::ptrdiff_t>(size));
        if (area.form == SacdForm::dstCoded)
            bits = encodeDstFrame(bits, area.signal.channels);
        else if (area.form == SacdForm::dstStored)
            bits.insert(bits.begin(), 0);
        frames.push_back(std::move(bits));
    }
    return frames;
}

/// One audio sector being filled.
class SectorFiller
{
public:
    SectorFiller(bool dst, size_t mostAudio)
        : dst_(dst)
        , mostAudio_(mostAudio)
    {
    }

    /// Takes as much of a frame as fits; returns how much.
    size_t take(const Bytes &frame, size_t from, int number)
    {
        const bool begins = from == 0;
        const size_t overhead = 2 + (begins ? infoBytes() : 0);
        // One packet of seven is kept for the padding.
        if (packets_.size() >= 6 || used() + overhead + 1 > sectorPayload || audio_.size() >= mostAudio_)
            return 0;
        const size_t count =
            std::min({frame.size() - from, sectorPayload - used() - overhead, mostAudio_ - audio_.size()});
        packets_.push_back((begins ? 0x8000U : 0U) | 2U << 11 | static_cast<unsigned>(count));
        const auto begin = frame.begin() + static_cast<std::ptrdiff_t>(from);
        audio_.insert(audio_.end(), begin, begin + static_cast<std::ptrdiff_t>(count));
        if (begins)
            numbers_.push_back(number);
        return count;
    }

    Bytes sector() const
    {
        const bool padded = used() + 2 <= sectorPayload;
        const size_t packets = packets_.size() + padded;
        ByteWriter out;
        out.big(packets << 5 | numbers_.size() << 2 | dst_, 1);
        // Padding first now and then, so that a reader must pass over what it does not want.
        const size_t padding = padded ? sectorPayload - used() - 2 : 0;
        const bool first = !numbers_.empty() && numbers_[0] % 2 == 1;
        const auto putPadding = [&] { out.big((first ? 3U : 7U) << 11 | padding, 2); };
        if (padded && first)
            putPadding();
        for (const unsigned packet : packets_)
            out.big(packet, 2);
        if (padded && !first)
            putPadding();
        for (const int number : numbers_) {
            Bytes time(4, 0);
            putTime(time, 0, number);
            time.resize(infoBytes());
            out.append(time);
        }
        if (first)
            out.append(Bytes(padding, 0x55));
        out.append(audio_);
        out.bytes.resize(sectorPayload, 0xAA);
        return out.bytes;
    }

private:
    size_t infoBytes() const { return dst_ ? 4 : 3; }
    size_t used() const { return 1 + 2 * packets_.size() + infoBytes() * numbers_.size() + audio_.size(); }

    bool dst_;
    size_t mostAudio_;
    std::vector<unsigned> packets_;
    std::vector<int> numbers_;
    Bytes audio_;
};

/// The audio sectors of an area; starts gets for each frame the sector in which it begins.
std::vector<Bytes> audioSectors(const SacdAreaRecipe &area, std::vector<int> &starts)
{
    const bool dst = area.form == SacdForm::dstStored || area.form == SacdForm::dstCoded;
    const size_t mostAudio = area.form == SacdForm::plain14   ? 3 * 2 * frameBytesOfAChannel / 14
                             : area.form == SacdForm::plain16 ? 3 * 2 * frameBytesOfAChannel / 16
                                                              : sectorPayload;
    const std::vector<Bytes> frames = discFrames(area);
    std::vector<Bytes> sectors;
    SectorFiller filler(dst, mostAudio);
    for (size_t i = 0; i < frames.size(); ++i) {
        for (size_t done = 0; done < frames[i].size();) {
            const size_t count = filler.take(frames[i], done, static_cast<int>(i));
            if (count == 0) {
                sectors.push_back(filler.sector());
                filler = SectorFiller(dst, mostAudio);
                continue;
            }
            if (done == 0)
                starts.push_back(static_cast<int>(sectors.size()));
            done += count;
        }
    }
    sectors.push_back(filler.sector());
    return sectors;
}

Bytes textSector(const SacdAreaRecipe &area, int characterSet)
{
    Bytes sector = named("SACDTTxt");
    size_t at = 512;
    for (size_t i = 0; i < area.tracks.size(); ++i) {
        const SacdTrackRecipe &track = area.tracks[i];
        if (track.title.empty() && track.performer.empty())
            continue;
        put(sector, 8 + 2 * i, at, 2);
        put(sector, at, (track.title.empty() ? 0 : 1) + (track.performer.empty() ? 0 : 1), 1);
        at += 4;
        for (const auto &[type, text] : {std::pair{1, track.title}, std::pair{2, track.performer}}) {
            if (text.empty())
                continue;
            const std::string words = encoded(text, characterSet);
            put(sector, at, static_cast<uint64_t>(type), 1);
            put(sector, at + 1, 0x20, 1);
            put(sector, at + 2, words);
            at += 2 + words.size() + 1;
        }
    }
    return sector;
}

std::vector<Bytes> areaTable(const SacdRecipe &recipe, const SacdAreaRecipe &area, const SacdPlaces &places,
                             const std::vector<int> &starts)
{
    Bytes head = named(area.multichannel ? "MULCHTOC" : "TWOCHTOC");
    const auto frames = static_cast<int>(area.signal.frames() / frameBytesOfAChannel);
    put(head, 8, 0x0114, 2);
    put(head, 10, tableSectors, 2);
    put(head, 20, 4, 1);
    put(head, 21, area.form == SacdForm::plain14 ? 2 : area.form == SacdForm::plain16 ? 3 : 0, 1);
    put(head, 32, static_cast<uint64_t>(area.signal.channels), 1);
    putTime(head, 64, frames);
    put(head, 68, static_cast<uint64_t>(area.numberOffset), 1);
    put(head, 69, area.tracks.size(), 1);
    put(head, 72, static_cast<uint64_t>(places.firstAudio), 4);
    put(head, 76, static_cast<uint64_t>(places.lastAudio), 4);
    put(head, 80, 1, 1);
    put(head, 88, recipe.characterSet == 3 ? "ja" : "en");
    put(head, 90, static_cast<uint64_t>(recipe.characterSet), 1);
    put(head, 128, 4, 2);
    Bytes sectors = named("SACDTRL1"), times = named("SACDTRL2");
    for (size_t i = 0; i < area.tracks.size(); ++i) {
        const SacdTrackRecipe &track = area.tracks[i];
        const auto first = static_cast<size_t>(track.startFrame);
        const auto last = std::min(first + static_cast<size_t>(track.frames), starts.size()) - 1;
        put(sectors, 8 + 4 * i, static_cast<uint64_t>(places.firstAudio + starts.at(first)), 4);
        put(sectors, 8 + 1020 + 4 * i, static_cast<uint64_t>(starts[last] - starts[first] + 1), 4);
        putTime(times, 8 + 4 * i, track.startFrame);
        putTime(times, 8 + 1020 + 4 * i, track.frames);
    }
    return {head, sectors, times, named("SACD_IGL"), textSector(area, recipe.characterSet)};
}

Bytes masterTable(const SacdRecipe &recipe, const std::vector<SacdPlaces> &places)
{
    Bytes master = named("SACDMTOC");
    put(master, 8, 0x0114, 2);
    put(master, 16, 1, 2);
    put(master, 18, 1, 2);
    for (size_t i = 0; i < recipe.areas.size(); ++i) {
        const size_t second = recipe.areas[i].multichannel ? 1 : 0;
        put(master, 64 + 8 * second, static_cast<uint64_t>(places[i].table), 4);
        put(master, 68 + 8 * second, static_cast<uint64_t>(places[i].copy), 4);
        put(master, 84 + 2 * second, tableSectors, 2);
    }
    put(master, 120, 2004, 2);
    put(master, 128, 1, 1);
    put(master, 136, recipe.characterSet == 3 ? "ja" : "en");
    put(master, 138, static_cast<uint64_t>(recipe.characterSet), 1);
    return master;
}

Bytes masterText(const SacdRecipe &recipe)
{
    Bytes text = named("SACDText");
    put(text, 16, 64, 2);
    put(text, 64, encoded(recipe.title, recipe.characterSet));
    return text;
}

} // namespace

SacdImageMade makeSacd(const SacdRecipe &recipe)
{
    SacdImageMade made;
    made.sectorBytes = recipe.sectorBytes;
    std::vector<Bytes> sectors(static_cast<size_t>(firstTable), Bytes(sectorPayload, 0));
    const auto append = [&](const std::vector<Bytes> &more) {
        sectors.insert(sectors.end(), more.begin(), more.end());
    };
    for (const SacdAreaRecipe &area : recipe.areas) {
        std::vector<int> starts;
        const std::vector<Bytes> audio = audioSectors(area, starts);
        SacdPlaces places;
        places.table = static_cast<int>(sectors.size());
        places.tableSectors = tableSectors;
        places.firstAudio = places.table + tableSectors + 3;
        places.lastAudio = places.firstAudio + static_cast<int>(audio.size()) - 1;
        places.copy = places.lastAudio + 1;
        const std::vector<Bytes> table = areaTable(recipe, area, places, starts);
        append(table);
        append(std::vector<Bytes>(3, Bytes(sectorPayload, 0)));
        append(audio);
        append(table);
        made.areas.push_back(places);
    }
    for (const int at : masterSectors) {
        const auto first = static_cast<size_t>(at);
        sectors[first] = masterTable(recipe, made.areas);
        sectors[first + 1] = masterText(recipe);
        for (size_t i = 2; i <= 8; ++i)
            sectors[first + i] = named("SACDText");
        sectors[first + 9] = named("SACD_Man");
    }
    const size_t head = recipe.sectorBytes == 2064 ? 12 : 0, tail = recipe.sectorBytes == 2064 ? 4 : 0;
    for (const Bytes &sector : sectors) {
        made.bytes.insert(made.bytes.end(), head, 0xEE);
        made.bytes.insert(made.bytes.end(), sector.begin(), sector.end());
        made.bytes.insert(made.bytes.end(), tail, 0xEE);
    }
    return made;
}

SacdAreaRecipe plainArea(SacdForm form, int tracks, int framesOfATrack, int channels, uint32_t seed,
                         SignalShape shape, const std::string &prefix)
{
    SacdAreaRecipe area;
    area.multichannel = channels > 2;
    area.form = form;
    area.signal = makeDsd(shape, frameBytesOfAChannel * static_cast<size_t>(tracks * framesOfATrack), 2822400,
                          channels, seed);
    for (int i = 0; i < tracks; ++i)
        area.tracks.push_back({i * framesOfATrack, framesOfATrack, prefix + " " + std::to_string(i + 1), ""});
    return area;
}

} // namespace kelp_test
