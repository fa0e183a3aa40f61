/// \file
/// Numbers at the front of a text, as in "3/12".
#pragma once

#include "tags/ascii.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>

/// Takes a decimal number with an optional sign, blanks before it, off the front of the text. A number too
/// large is taken as the largest there is.
inline std::optional<int32_t> takeNumber(std::string_view &text)
{
    std::string_view rest = withoutLeading(text, " \t\n\v\f\r");
    const bool negative = rest.starts_with('-');
    if (negative || rest.starts_with('+'))
        rest.remove_prefix(1);
    const size_t digits = countLeading(rest, isAsciiDigit);
    if (digits == 0)
        return std::nullopt;
    constexpr int64_t largest = std::numeric_limits<int32_t>::max();
    int64_t value = 0;
    for (const char digit : rest.substr(0, digits))
        value = std::min(largest, value * 10 + (digit - '0'));
    text = rest.substr(digits);
    return static_cast<int32_t>(negative ? -value : value);
}

struct NumberPair
{
    int32_t first = 0;
    int32_t second = 0; ///< 0 when the text has one number only
};

/// "%d/%d" with at least one number.
inline std::optional<NumberPair> scanNumberPair(std::string_view text)
{
    const std::optional<int32_t> first = takeNumber(text);
    if (!first)
        return std::nullopt;
    if (!text.starts_with('/'))
        return NumberPair{*first, 0};
    text.remove_prefix(1);
    return NumberPair{*first, takeNumber(text).value_or(0)};
}
