#include "player_core/output/device_list.h"

#include <algorithm>

namespace kelp_core {
namespace {

/// A text that can stand in one field of one line.
std::string field(std::string text)
{
    std::replace_if(
        text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < ' ' || c == 0x7f; },
        ' ');
    const size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Ids that would be read as another kind of line, or not at all.
bool isPlainName(const std::string &id)
{
    return !id.empty() && id == field(id) && !id.starts_with("[") && !id.starts_with("===") &&
           !id.starts_with("hw:") && !id.starts_with("plughw:") && id != "pulse" && !id.starts_with("pulse:");
}

const char *yesNo(bool value)
{
    return value ? "yes" : "no";
}

} // namespace

std::string formatDeviceList(const DeviceList &list)
{
    std::string text;
    if (!list.server.empty())
        text += "pulse\t" + field(list.server) + "\n";
    for (const ListedDevice &sink : list.sinks)
        text += field(sink.id) + "\t" + field(sink.id) + "\t" + field(sink.label) + "\n";
    for (const ListedDevice &card : list.cards) {
        text += field(card.id) + "\t" + field(card.label) + "\n";
        text += "plug" + field(card.id) + "\t" + field(card.label) + ", converting\n";
    }
    for (const ListedDevice &other : list.others)
        if (isPlainName(other.id))
            text += other.id + "\t" + other.id + "\t" + field(other.label) + "\n";
    return text;
}

std::string formatCapabilities(const std::vector<DeviceCapability> &devices)
{
    std::string text;
    for (const DeviceCapability &device : devices) {
        if (device.id.empty() || device.id != field(device.id) || device.id.find(' ') != std::string::npos)
            continue;
        text += "DEV " + device.id + " " + device.kind + " " + yesNo(device.nativeDsd) + " " +
                yesNo(device.dop1x) + " " + yesNo(device.dop2x) + " " + device.state + "\n";
        std::string rates;
        for (int rate : device.ratesHz)
            rates += (rates.empty() ? "" : ",") + std::to_string(rate);
        if (!rates.empty())
            text += "└ rates: " + rates + "\n";
    }
    return text;
}

} // namespace kelp_core
