#include "player_core/source/cue_line.h"

#include <algorithm>

namespace kelp_core {
namespace {

bool isBlank(char letter)
{
    return letter == ' ' || letter == '\t';
}

std::string_view withoutBlanksBehind(std::string_view text)
{
    while (!text.empty() && isBlank(text.back()))
        text.remove_suffix(1);
    return text;
}

} // namespace

std::string_view CueLine::word()
{
    if (left_.empty())
        return {};
    if (left_[0] == '"')
        return quoted(left_.find('"', 1));
    size_t size = 0;
    while (size < left_.size() && !isBlank(left_[size]))
        ++size;
    return take(size);
}

std::string_view CueLine::rest()
{
    if (!left_.empty() && left_[0] == '"')
        return quoted(left_.rfind('"'));
    const std::string_view text = withoutBlanksBehind(left_);
    left_ = {};
    return text;
}

std::pair<std::string_view, std::string_view> CueLine::nameAndType()
{
    if (!left_.empty() && left_[0] == '"') {
        const std::string_view name = quoted(left_.rfind('"'));
        return {name, word()};
    }
    const std::string_view text = rest();
    const size_t blank = text.find_last_of(" \t");
    if (blank == std::string_view::npos)
        return {text, {}};
    return {withoutBlanksBehind(text.substr(0, blank)), text.substr(blank + 1)};
}

std::string_view CueLine::take(size_t size)
{
    const std::string_view text = left_.substr(0, size);
    left_.remove_prefix(std::min(size, left_.size()));
    skipBlanks();
    return text;
}

std::string_view CueLine::quoted(size_t end)
{
    left_.remove_prefix(1);
    // A quote that is never closed ends with the line.
    const size_t size = end == std::string_view::npos || end == 0 ? left_.size() : end - 1;
    const std::string_view text = left_.substr(0, size);
    left_.remove_prefix(std::min(size + 1, left_.size()));
    skipBlanks();
    return text;
}

void CueLine::skipBlanks()
{
    while (!left_.empty() && isBlank(left_[0]))
        left_.remove_prefix(1);
}

} // namespace kelp_core
