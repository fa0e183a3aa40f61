#include "player_core/dsp/fixed_text.h"

#include <array>
#include <charconv>

namespace kelp_core {

std::string fixedText(double value, int decimals)
{
    // The longest double has 309 digits before the point.
    std::array<char, 352> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                            std::chars_format::fixed, decimals);
    if (error != std::errc{})
        return "0";
    std::string text(buffer.data(), end);
    if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos)
        text.erase(0, 1);
    return text;
}

} // namespace kelp_core
