/// \file
/// Letters, digits and blanks of ASCII, whatever the locale.
#pragma once

#include <string>
#include <string_view>

constexpr bool isAsciiDigit(char c)
{
    return c >= '0' && c <= '9';
}

constexpr char asciiLower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

constexpr char asciiUpper(char c)
{
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

constexpr bool isAsciiLetter(char c)
{
    return asciiLower(c) >= 'a' && asciiLower(c) <= 'z';
}

inline std::string asciiLower(std::string_view text)
{
    std::string lower(text);
    for (char &c : lower)
        c = asciiLower(c);
    return lower;
}

inline std::string asciiUpper(std::string_view text)
{
    std::string upper(text);
    for (char &c : upper)
        c = asciiUpper(c);
    return upper;
}

/// How many characters at the front are of a kind.
constexpr size_t countLeading(std::string_view text, bool (*isOfKind)(char))
{
    size_t count = 0;
    while (count < text.size() && isOfKind(text[count]))
        ++count;
    return count;
}

/// The text without those of the characters that stand at its front.
constexpr std::string_view withoutLeading(std::string_view text, std::string_view characters)
{
    const size_t begin = text.find_first_not_of(characters);
    return begin == std::string_view::npos ? std::string_view() : text.substr(begin);
}

/// The text without blanks, tabs and line ends at its ends.
constexpr std::string_view trimmedText(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    text = withoutLeading(text, blanks);
    return text.substr(0, text.find_last_not_of(blanks) + 1);
}

/// The lower-cased text behind the last point of a path; empty without one.
inline std::string suffixOf(std::string_view path)
{
    const size_t point = path.rfind('.');
    return point == std::string_view::npos ? std::string() : asciiLower(path.substr(point + 1));
}
