#include "player_core/output/hw_params_record.h"

#include <charconv>
#include <fstream>
#include <optional>

namespace kelp_core {
namespace {

constexpr size_t maxRecordBytes = 4096;
constexpr int maxRateHz = 100'000'000;
constexpr int maxChannels = 1024;

std::string_view trimmed(std::string_view text)
{
    const size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos)
        return {};
    return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

/// The text behind "key:" of the line that begins with it.
std::optional<std::string_view> valueOf(std::string_view text, std::string_view key)
{
    while (!text.empty()) {
        const size_t end = text.find('\n');
        const std::string_view line = text.substr(0, end);
        text = end == std::string_view::npos ? std::string_view() : text.substr(end + 1);
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == ':')
            return trimmed(line.substr(key.size() + 1));
    }
    return std::nullopt;
}

/// The whole number at the start of a value such as "44100 (44100/1)".
int leadingNumber(std::string_view value, int max)
{
    int number = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), number);
    const bool whole = end == value.data() + value.size() || *end == ' ';
    return error == std::errc() && whole && number > 0 && number <= max ? number : 0;
}

} // namespace

ReadBack parseHwParams(std::string_view text, const std::string &path)
{
    ReadBack record;
    const auto format = valueOf(text, "format");
    const auto channels = valueOf(text, "channels");
    const auto rate = valueOf(text, "rate");
    if (!format || format->empty() || !channels || !rate)
        return record;
    const int rateHz = leadingNumber(*rate, maxRateHz);
    const int channelCount = leadingNumber(*channels, maxChannels);
    if (rateHz == 0 || channelCount == 0)
        return record;
    record.known = true;
    record.origin = "kernel (" + path + ")";
    record.rateHz = rateHz;
    record.format = std::string(*format);
    record.channels = channelCount;
    return record;
}

ReadBack readHwParams(int card, int device, int subdevice, const std::string &procRoot)
{
    const std::string path = procRoot + "/card" + std::to_string(card) + "/pcm" + std::to_string(device) +
                             "p/sub" + std::to_string(subdevice) + "/hw_params";
    std::ifstream file(path, std::ios::binary);
    std::string text(maxRecordBytes, '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    text.resize(static_cast<size_t>(file.gcount()));
    return parseHwParams(text, path);
}

} // namespace kelp_core
