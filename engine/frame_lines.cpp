#include "engine/frame_lines.h"

#include "engine/line_words.h"

#include <optional>
#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr double spectrumRangeDb = 96.;

int hexDigit(QChar c)
{
    const char16_t code = c.unicode();
    if (code >= u'0' && code <= u'9')
        return code - u'0';
    if (code >= u'a' && code <= u'f')
        return code - u'a' + 10;
    if (code >= u'A' && code <= u'F')
        return code - u'A' + 10;
    return -1;
}

/// The byte at two digits; -1 when one of them is no digit. The digits are there.
int hexByte(QStringView digits, qsizetype at)
{
    const int high = hexDigit(digits[at]);
    const int low = hexDigit(digits[at + 1]);
    return high < 0 || low < 0 ? -1 : high * 16 + low;
}

/// Empty when the block is short or has something else than digits.
std::vector<double> bandsOf(QStringView block, int bands)
{
    std::vector<double> levelsDb;
    if (block.size() < 2 * bands)
        return levelsDb;
    levelsDb.reserve(static_cast<std::size_t>(bands));
    for (int band = 0; band < bands; ++band) {
        const int byte = hexByte(block, 2 * band);
        if (byte < 0)
            return {};
        levelsDb.push_back(byte / 255. * spectrumRangeDb - spectrumRangeDb);
    }
    return levelsDb;
}

/// Empty when one of the digits is none. The block is long enough.
WaveformChannel bucketsOf(QStringView block, int buckets)
{
    WaveformChannel channel;
    channel.first.reserve(static_cast<std::size_t>(buckets));
    channel.second.reserve(static_cast<std::size_t>(buckets));
    for (int bucket = 0; bucket < buckets; ++bucket) {
        const int first = hexByte(block, 4 * bucket);
        const int second = hexByte(block, 4 * bucket + 2);
        if (first < 0 || second < 0)
            return {};
        channel.first.push_back(first / 127.5 - 1.);
        channel.second.push_back(second / 127.5 - 1.);
    }
    return channel;
}

QStringView withoutLeadingBlanks(QStringView text)
{
    qsizetype at = 0;
    while (at < text.size() && text[at] == u' ')
        ++at;
    return text.sliced(at);
}

/// Cuts the first word off the text; empty when there is none.
QStringView takeWord(QStringView &text)
{
    text = withoutLeadingBlanks(text);
    const qsizetype gap = text.indexOf(u' ');
    const QStringView word = gap < 0 ? text : text.first(gap);
    text = text.sliced(word.size());
    return word;
}

} // namespace

bool parseSpectrum(QStringView text, SpectrumFrame &frame)
{
    constexpr qsizetype mostWords = 6;
    const qsizetype at = text.indexOf("SPC "_L1);
    if (at < 0)
        return false;
    const LineWords words = wordsOf(text.sliced(at), mostWords);
    if (words.size() < 4)
        return false;
    const std::optional<double> rateHz = finiteNumber(words[1]);
    const std::optional<int> bands = wholeNumber(words[2]);
    if (!rateHz || !bands || *bands < 1 || *bands > mostSpectrumBands)
        return false;
    std::vector<double> main = bandsOf(words[3], *bands);
    if (main.empty())
        return false;
    std::vector<double> peaks;
    if (words.size() > 4)
        peaks = bandsOf(words[4], *bands);
    frame = {*rateHz, *bands, std::move(main), std::move(peaks)};
    return true;
}

bool parseWaveform(QStringView text, WaveformFrame &frame)
{
    constexpr auto prefix = "WVF "_L1;
    if (!text.startsWith(prefix))
        return false;
    QStringView rest = text.sliced(prefix.size());
    const std::optional<double> rateHz = finiteNumber(takeWord(rest));
    const std::optional<int> buckets = wholeNumber(takeWord(rest));
    if (!rateHz || !buckets || *buckets < 1 || *buckets > mostWaveformBuckets)
        return false;
    const qsizetype blockSize = 4 * static_cast<qsizetype>(*buckets);
    rest = withoutLeadingBlanks(rest);
    if (rest.size() < blockSize)
        return false;
    WaveformChannel channel1 = bucketsOf(rest, *buckets);
    if (channel1.first.empty())
        return false;
    const QStringView behind = rest.sliced(blockSize);
    const QStringView second = withoutLeadingBlanks(behind);
    WaveformChannel channel2;
    // Digits that follow without a blank are a block longer than its count says, not a second channel.
    if (second.size() < behind.size() && second.size() >= blockSize)
        channel2 = bucketsOf(second, *buckets);
    frame = {*rateHz, *buckets, std::move(channel1), std::move(channel2)};
    return true;
}
