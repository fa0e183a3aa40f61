#include "net/remote_request.h"

#include <optional>

namespace {

std::optional<int> hexDigit(char digit)
{
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    return std::nullopt;
}

/// What stands before the first separator; \p text keeps what stands behind it, nothing when there is none.
std::string_view takeUntil(std::string_view &text, char separator)
{
    const std::size_t end = text.find(separator);
    const std::string_view taken = text.substr(0, end);
    text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
    return taken;
}

} // namespace

std::string RemoteRequest::value(const std::string &key) const
{
    const auto found = query.find(key);
    return found == query.end() ? std::string() : found->second;
}

std::string formDecoded(std::string_view text)
{
    std::string decoded;
    decoded.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '%' && i + 2 < text.size()) {
            const std::optional<int> high = hexDigit(text[i + 1]);
            const std::optional<int> low = hexDigit(text[i + 2]);
            if (high && low) {
                decoded.push_back(static_cast<char>(*high * 16 + *low));
                i += 2;
                continue;
            }
        }
        decoded.push_back(text[i] == '+' ? ' ' : text[i]);
    }
    return decoded;
}

bool parseRemoteRequest(std::string_view line, RemoteRequest &out)
{
    out = {};
    out.method = takeUntil(line, ' ');
    out.target = takeUntil(line, ' ');
    if (out.method.empty() || out.target.empty())
        return false;
    std::string_view rest = out.target;
    out.path = takeUntil(rest, '?');
    while (!rest.empty()) {
        std::string_view part = takeUntil(rest, '&');
        if (part.empty())
            continue;
        const std::string key = formDecoded(takeUntil(part, '='));
        out.query.insert_or_assign(key, formDecoded(part));
    }
    out.token = out.value("t");
    return true;
}
