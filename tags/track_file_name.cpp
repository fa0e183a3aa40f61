#include "tags/track_file_name.h"

#include "tags/ascii.h"

namespace {

constexpr size_t mostDigits = 4;

/// The number as shown, with two digits at least; nothing when name parts are missing.
bool settle(std::string_view number, std::string_view title, TrackFileName &result)
{
    if (number.empty() || number.size() > mostDigits || title.empty())
        return false;
    result.track = (number.size() == 1 ? "0" : "") + std::string(number);
    result.title = title;
    return true;
}

std::string_view takeDigits(std::string_view &rest)
{
    const std::string_view digits = rest.substr(0, countLeading(rest, isAsciiDigit));
    rest.remove_prefix(digits.size());
    return digits;
}

bool beginsWithDisc(std::string_view lower)
{
    return lower.starts_with("cd") || lower.starts_with("disc") || lower.starts_with("disk");
}

/// "CD1-02 Title": the digits behind the disc's. Leaves in rest what follows them.
std::string_view numberBehindDisc(std::string_view &rest)
{
    const size_t first = rest.find_first_of("0123456789");
    if (first == std::string_view::npos)
        return {};
    rest.remove_prefix(first);
    takeDigits(rest);
    if (!rest.empty() && std::string_view("-_.").find(rest.front()) != std::string_view::npos)
        rest.remove_prefix(1);
    return takeDigits(rest);
}

/// Commas and colons of full width, as names in Chinese and Japanese have them behind the number.
std::string_view withoutWidePunctuation(std::string_view title)
{
    for (const std::string_view mark : {"、", "，", "："})
        while (title.starts_with(mark))
            title = trimmedText(title.substr(mark.size()));
    return title;
}

} // namespace

TrackFileName parseTrackFileName(std::string_view name)
{
    TrackFileName result;
    const std::string_view whole = trimmedText(name);
    const std::string lower = asciiLower(whole);

    std::string_view rest = whole;
    std::string_view number = takeDigits(rest);
    if (number.empty() && beginsWithDisc(lower))
        number = numberBehindDisc(rest);
    if (settle(number, withoutWidePunctuation(trimmedText(withoutLeading(rest, " .-_)]"))), result))
        return result;

    constexpr std::string_view word = "track";
    constexpr std::string_view separators = " _-";
    if (lower.starts_with(word)) {
        rest = withoutLeading(whole.substr(word.size()), separators);
        number = takeDigits(rest);
        if (settle(number, trimmedText(withoutLeading(rest, separators)), result))
            return result;
    }
    return {{}, std::string(whole)};
}
