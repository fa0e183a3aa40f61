#include "tags/disc_number.h"

#include "tags/ascii.h"

#include <algorithm>
#include <array>

namespace {

constexpr size_t shortestName = 3; // "cd1"
constexpr size_t longestWord = 4;
constexpr size_t mostDigits = 2;
constexpr std::string_view beforeWord = " (+-./[\\_";
constexpr std::string_view behindWord = " _-.";
constexpr std::array<std::string_view, 4> words{"cd", "disc", "disk", "dvd"};

/// The number of the word that begins at the position, or 0.
int numberAt(std::string_view path, size_t position)
{
    std::string_view rest = path.substr(position);
    const size_t letters = countLeading(rest.substr(0, longestWord), isAsciiLetter);
    if (std::find(words.begin(), words.end(), asciiLower(rest.substr(0, letters))) == words.end())
        return 0;
    rest = withoutLeading(rest.substr(letters), behindWord);
    const size_t digits = countLeading(rest, isAsciiDigit);
    // "CD100" is a name and not the disc 10.
    if (digits > mostDigits)
        return 0;
    int number = 0;
    for (const char digit : rest.substr(0, digits))
        number = number * 10 + (digit - '0');
    return number;
}

} // namespace

int discNumberFromPath(std::string_view path)
{
    for (size_t position = 0; position + shortestName <= path.size(); ++position) {
        if (position > 0 && beforeWord.find(path[position - 1]) == std::string_view::npos)
            continue;
        if (const int number = numberAt(path, position))
            return number;
    }
    return 0;
}
