#pragma once

#include <optional>
#include <sstream>
#include <string>
#include <vector>

/// Strict readers of the telemetry lines, as the other side of the pipe has them.

inline std::optional<std::vector<int>> hexBytes(const std::string &text)
{
    if (text.size() % 2 != 0 || text.find_first_not_of("0123456789abcdefABCDEF") != std::string::npos)
        return std::nullopt;
    std::vector<int> bytes;
    for (size_t i = 0; i < text.size(); i += 2)
        bytes.push_back(std::stoi(text.substr(i, 2), nullptr, 16));
    return bytes;
}

struct SpcFrame
{
    int rateHz = 0;
    std::vector<double> main;
    std::vector<double> second;
};

/// "SPC <rate> <n> <2n digits> [<2n digits>]", a byte v being v / 255 × 96 − 96 dB.
inline std::optional<SpcFrame> parseSpc(const std::string &line)
{
    std::istringstream words(line);
    std::string key, main, second, rest;
    SpcFrame frame;
    int n = 0;
    if (!(words >> key >> frame.rateHz >> n >> main) || key != "SPC" || n < 1 || n > 128)
        return std::nullopt;
    words >> second;
    if (words >> rest)
        return std::nullopt;
    for (auto [text, target] : {std::pair{&main, &frame.main}, std::pair{&second, &frame.second}}) {
        const auto bytes = hexBytes(*text);
        if (!bytes || (!text->empty() && bytes->size() != static_cast<size_t>(n)))
            return std::nullopt;
        for (int v : *bytes)
            target->push_back(v / 255.0 * 96.0 - 96.0);
    }
    return frame;
}

struct WvfFrame
{
    struct Channel
    {
        std::vector<double> low;
        std::vector<double> high;
    };
    int rateHz = 0;
    std::vector<Channel> channels;
};

/// "WVF <rate> <n> <4n digits> [<4n digits>]", a byte v being v / 127.5 − 1.
inline std::optional<WvfFrame> parseWvf(const std::string &line)
{
    std::istringstream words(line);
    std::string key, block;
    WvfFrame frame;
    int n = 0;
    if (!(words >> key >> frame.rateHz >> n) || key != "WVF" || n < 1 || n > 256)
        return std::nullopt;
    while (words >> block) {
        const auto bytes = hexBytes(block);
        if (!bytes || bytes->size() != static_cast<size_t>(2 * n))
            return std::nullopt;
        WvfFrame::Channel channel;
        for (size_t i = 0; i < bytes->size(); i += 2) {
            channel.low.push_back((*bytes)[i] / 127.5 - 1.0);
            channel.high.push_back((*bytes)[i + 1] / 127.5 - 1.0);
        }
        frame.channels.push_back(channel);
    }
    if (frame.channels.empty() || frame.channels.size() > 2)
        return std::nullopt;
    return frame;
}
