#pragma once

#include <string_view>

namespace kelp_core {

/// How much a text looks as if it were written in an encoding: the mean over its characters beyond ASCII,
/// about −1 (nonsense) to 3 (everyday words).
using EncodingScore = double (*)(std::string_view bytes, std::string_view asUtf8);

double scoreWindows1252(std::string_view bytes, std::string_view asUtf8);
double scoreGb18030(std::string_view bytes, std::string_view asUtf8);
double scoreBig5(std::string_view bytes, std::string_view asUtf8);
double scoreShiftJis(std::string_view bytes, std::string_view asUtf8);
double scoreEucKr(std::string_view bytes, std::string_view asUtf8);

} // namespace kelp_core
