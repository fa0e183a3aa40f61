#include "player_core/session/sheet_successor.h"

#include <algorithm>
#include <charconv>
#include <vector>

namespace kelp_core {

namespace {

constexpr size_t numberField = 1;
constexpr size_t pathField = 6;

std::vector<std::string_view> split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    for (size_t start = 0; start <= text.size();) {
        const size_t end = std::min(text.find(separator, start), text.size());
        parts.push_back(text.substr(start, end - start));
        start = end + 1;
    }
    return parts;
}

} // namespace

std::optional<int>
sheetSuccessor(std::string_view listing, int track, const std::string &path,
               const std::function<bool(const std::string &, const std::string &)> &samePath)
{
    for (const std::string_view line : split(listing, '\n')) {
        const std::vector<std::string_view> fields = split(line, '\t');
        if (fields.size() <= pathField || fields[0] != "TRACK")
            continue;
        int number = 0;
        const std::string_view digits = fields[numberField];
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
        // Sheets may leave numbers out: the next one is the first that is higher.
        if (read.ec != std::errc() || number <= track)
            continue;
        if (samePath(std::string(fields[pathField]), path))
            return number;
        return std::nullopt;
    }
    return std::nullopt;
}

std::optional<int> imageSuccessor(const std::vector<int> &numbers, bool sameImage, int playing)
{
    if (numbers.empty())
        return std::nullopt;
    if (sameImage && playing >= 1) {
        // In the disc's order, which may leave numbers out.
        const auto present = std::find(numbers.begin(), numbers.end(), playing);
        if (present != numbers.end() && present + 1 != numbers.end())
            return *(present + 1);
    }
    return numbers.front();
}

} // namespace kelp_core
