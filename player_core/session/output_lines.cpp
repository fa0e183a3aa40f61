#include "player_core/session/output_lines.h"

#include "player_core/dsp/fixed_text.h"

#include <algorithm>

namespace kelp_core {

std::string sourceLine(const SourceFacts &facts)
{
    const StreamFormat &f = facts.format;
    return "SRC " + std::to_string(f.rateHz) + ' ' + std::to_string(f.depthBits) + ' ' +
           std::to_string(f.channels) + ' ' + facts.formatWord + (facts.dst ? " 1 " : " 0 ") +
           fixedText(std::max(0.0, totalSeconds(facts)), 3);
}

std::string progressLine(double seconds, double totalSec)
{
    seconds = std::max(0.0, seconds);
    if (totalSec < 0)
        return "PG 0.00 " + fixedText(seconds, 3);
    seconds = std::min(seconds, totalSec);
    const double percent = totalSec > 0 ? seconds / totalSec * 100.0 : 100.0;
    return "PG " + fixedText(percent, 2) + ' ' + fixedText(seconds, 3) + ' ' + fixedText(totalSec, 3);
}

std::string levelLine(const std::array<double, 2> &db)
{
    return "LVL " + fixedText(db[0], 2) + ' ' + fixedText(db[1], 2);
}

std::string segmentLine(double startSec, double endSec, int number)
{
    return "SEG " + fixedText(startSec, 3) + ' ' + fixedText(endSec, 3) + ' ' + std::to_string(number);
}

std::string scanLine(double percent, double doneSec, double totalSec)
{
    return "SCAN " + fixedText(std::clamp(percent, 0.0, 100.0), 1) + ' ' + fixedText(doneSec, 1) + ' ' +
           fixedText(totalSec, 1);
}

std::string doneLine(const std::string &path)
{
    return "DONE " + oneLine(path);
}

std::string failedLine(const std::string &reason, const std::string &path)
{
    return "FAILED " + oneLine(reason) + ": " + oneLine(path);
}

std::string pdmFilterLine(int dsdRateHz, const char *filter, bool chosen)
{
    return "PDM2PCM filter " + dsdName(dsdRateHz) + ' ' + filter + (chosen ? " manual" : " auto");
}

std::string dsdName(int dsdRateHz)
{
    // 48 kHz relatives (3.072 MHz …) go by the same names in the trade.
    const int base = dsdRateHz % 48000 == 0 && dsdRateHz % 44100 != 0 ? 48000 : 44100;
    return "DSD" + std::to_string(dsdRateHz / base);
}

double totalSeconds(const SourceFacts &facts)
{
    const int64_t rate = facts.format.framesPerSecond();
    if (facts.totalFrames < 0 || rate <= 0)
        return -1;
    return static_cast<double>(facts.totalFrames) / static_cast<double>(rate);
}

std::string oneLine(const std::string &text)
{
    std::string result = text;
    std::replace_if(
        result.begin(), result.end(),
        [](char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7f; }, '?');
    return result;
}

} // namespace kelp_core
