#include "player_core/output/alsa_name.h"

#include <alsa/asoundlib.h>

namespace kelp_core {
namespace {

constexpr std::string_view hardwarePrefix = "hw:";
constexpr std::string_view plugPrefix = "plughw:";
constexpr std::string_view cardKey = "CARD=";

} // namespace

std::optional<HardwareName> parseHardwareName(std::string_view id)
{
    HardwareName name;
    if (id.starts_with(plugPrefix)) {
        name.plug = true;
        id.remove_prefix(plugPrefix.size());
    } else if (id.starts_with(hardwarePrefix)) {
        id.remove_prefix(hardwarePrefix.size());
    } else {
        return std::nullopt;
    }
    name.place = std::string(id);
    const size_t key = id.find(cardKey);
    if (key != std::string_view::npos && (key == 0 || id[key - 1] == ','))
        id.remove_prefix(key + cardKey.size());
    name.card = std::string(id.substr(0, id.find(',')));
    return name;
}

int cardOf(std::string_view id)
{
    const std::optional<HardwareName> name = parseHardwareName(id);
    return name && !name->card.empty() ? snd_card_get_index(name->card.c_str()) : -1;
}

} // namespace kelp_core
