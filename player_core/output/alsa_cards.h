#pragma once

#include <string>
#include <vector>

namespace kelp_core {

/// A playback device of a sound card.
struct CardPcm
{
    int card = 0;
    int device = 0;
    std::string label; ///< "Desk DAC, USB Audio"
    std::string id() const { return "hw:" + place(); }
    std::string place() const { return std::to_string(card) + "," + std::to_string(device); }
};

/// All playback devices of all cards, by card and device. Opens only the cards' controls, no device.
std::vector<CardPcm> cardPcms();

/// Names of the PCMs that the user's or the system's configuration defines by itself and that can play: no
/// templates that want arguments, none of the library's own. Opens no device.
struct NamedPcm
{
    std::string name;
    std::string label;
};
std::vector<NamedPcm> namedPcms();

} // namespace kelp_core
