#include "net/remote_json.h"

#include <QString>

#include <array>
#include <charconv>
#include <cmath>

namespace {

constexpr int decimals = 2;
/// Room of an item beside its texts, for one reservation instead of many.
constexpr std::size_t itemRoom = 96;

void appendEscaped(std::string &out, std::string_view text)
{
    static constexpr std::string_view digits = "0123456789abcdef";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        switch (character) {
        case '"':
            out += "\\\"";
            break;
        case '\\':
            out += "\\\\";
            break;
        case '\r':
            out += "\\r";
            break;
        case '\n':
            out += "\\n";
            break;
        case '\t':
            out += "\\t";
            break;
        default:
            if (byte < 0x20) {
                out += "\\u00";
                out += digits[byte >> 4];
                out += digits[byte & 0xf];
            } else {
                out += character;
            }
        }
    }
}

void appendText(std::string &out, std::string_view key, std::string_view text)
{
    out += key;
    appendEscaped(out, text);
    out += '"';
}

/// printf's "%.2f" without the decimal comma of a locale. What is no number has no form in JSON and is 0.
std::string seconds(double value)
{
    std::array<char, 400> digits{};
    const double finite = std::isfinite(value) ? value : 0.;
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), finite,
                                   std::chars_format::fixed, decimals);
    return {digits.data(), end.ptr};
}

std::string_view boolean(bool value)
{
    return value ? "true" : "false";
}

} // namespace

std::string jsonEscape(std::string_view text)
{
    std::string out;
    out.reserve(text.size());
    appendEscaped(out, text);
    return out;
}

std::string remoteStateJson(const RemoteState &state)
{
    std::string out = "{\"playing\":";
    out += boolean(state.playing);
    out += ",\"paused\":";
    out += boolean(state.paused);
    appendText(out, ",\"title\":\"", state.title);
    appendText(out, ",\"artist\":\"", state.artist);
    appendText(out, ",\"album\":\"", state.album);
    appendText(out, ",\"format\":\"", state.format);
    out += ",\"pos\":" + seconds(state.pos);
    out += ",\"dur\":" + seconds(state.dur);
    out += ",\"volume\":" + std::to_string(state.volume);
    out += ",\"muted\":";
    out += boolean(state.muted);
    out += ",\"track\":" + std::to_string(state.track);
    out += ",\"total\":" + std::to_string(state.total);
    out += '}';
    return out;
}

std::string remoteLibraryJson(const std::vector<RemoteLibraryItem> &items, int total)
{
    std::string out = "{\"total\":" + std::to_string(total) + ",\"items\":[";
    out.reserve(out.size() + items.size() * itemRoom);
    for (std::size_t i = 0; i < items.size(); ++i) {
        out += i == 0 ? "{\"i\":" : ",{\"i\":";
        // The position in this answer and not the row. The two differ while a filter hides rows, and "playat"
        // takes a row: the gap is kept, since clients count this way.
        out += std::to_string(i);
        appendText(out, ",\"title\":\"", items[i].title);
        appendText(out, ",\"artist\":\"", items[i].artist);
        out += ",\"current\":";
        out += boolean(items[i].current);
        out += '}';
    }
    out += "]}";
    return out;
}

std::string remoteErrorJson(std::string_view reason)
{
    std::string out;
    const auto size = static_cast<qsizetype>(reason.size());
    const QByteArray text = QString::fromUtf8(reason.data(), size).toUtf8();
    appendText(out, "{\"error\":\"", {text.constData(), static_cast<std::size_t>(text.size())});
    return out + '}';
}
