#include "player_core/output/opened_line.h"

namespace kelp_core {
namespace {

const char *carrierName(Carrier carrier)
{
    switch (carrier) {
    case Carrier::pcm:
        return "PCM";
    case Carrier::dop:
        return "DoP";
    case Carrier::nativeDsd:
        return "native DSD";
    }
    return "unknown";
}

std::string channelsText(int channels)
{
    return std::to_string(channels) + (channels == 1 ? " channel" : " channels");
}

} // namespace

std::string openedLine(const OpenedOutput &opened)
{
    std::string line = "OPENED " + opened.device;
    if (!opened.deviceLabel.empty() && opened.deviceLabel != opened.device)
        line += " (" + opened.deviceLabel + ")";
    line += " by " + opened.backend + (opened.exclusive ? ", exclusive: " : ", shared: ");
    const ReadBack &record = opened.readBack;
    if (record.known)
        line += std::to_string(record.rateHz) + " Hz, " + record.format + ", " +
                channelsText(record.channels) + ", read back from the " + record.origin;
    else
        line += "rate not known, format not known, channels not known, there is no record to read back";
    return line + "; client side: " + std::to_string(opened.wire.frameRateHz) + " Hz, " +
           encodingName(opened.wire.encoding) + ", " + channelsText(opened.wire.channels) + ", " +
           carrierName(opened.wire.carrier);
}

} // namespace kelp_core
