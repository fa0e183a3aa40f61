#pragma once

#include "player_core/source/source.h"

#include <array>
#include <cstdint>
#include <string>

namespace kelp_core {

/// "SRC <rate> <bits> <channels> <format> <1 for DST> <seconds>"; 0 seconds when the length is not known.
std::string sourceLine(const SourceFacts &facts);

/// "PG <percent> <seconds> <total>", without the total when it is not known (below 0). Percent and position
/// never pass the end.
std::string progressLine(double seconds, double totalSec);

/// "LVL <left> <right>" in dBFS with two decimals.
std::string levelLine(const std::array<double, 2> &db);

/// "SEG <start> <end> <number>": the part of a source, in seconds, that is heard now.
std::string segmentLine(double startSec, double endSec, int number);

/// "SCAN <percent> <seconds> <total>".
std::string scanLine(double percent, double doneSec, double totalSec);

/// "DONE <file>". The file always stands behind the word: readers know the bare word by no form.
std::string doneLine(const std::string &path);

/// "FAILED <reason>: <path>".
std::string failedLine(const std::string &reason, const std::string &path);

/// "PDM2PCM filter DSD64 standard auto": the rate that is decoded, the filter, and who chose it.
std::string pdmFilterLine(int dsdRateHz, const char *filter, bool chosen);

/// "DSD64" … by the rate's multiple of 44100 Hz.
std::string dsdName(int dsdRateHz);

/// Seconds of a source's total, below 0 when it is not known.
double totalSeconds(const SourceFacts &facts);

/// The text without line ends and other control characters, so that a path cannot break a line in two.
std::string oneLine(const std::string &text);

} // namespace kelp_core
