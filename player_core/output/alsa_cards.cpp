#include "player_core/output/alsa_cards.h"

#include "player_core/output/alsa_messages.h"

#include <alsa/asoundlib.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <memory>
#include <string_view>

namespace kelp_core {
namespace {

struct AlsaDeleter
{
    void operator()(snd_ctl_t *control) const { snd_ctl_close(control); }
    void operator()(snd_pcm_info_t *info) const { snd_pcm_info_free(info); }
    void operator()(snd_config_t *config) const { snd_config_delete(config); }
    void operator()(snd_config_update_t *update) const { snd_config_update_free(update); }
};

/// PCMs that the library or its plugins bring along and that are no device of the listener's.
constexpr std::array<std::string_view, 2> libraryPcms{"null", "jack"};
/// Types that record only.
constexpr std::array<std::string_view, 1> captureTypes{"dsnoop"};

void addDevices(int card, std::vector<CardPcm> &pcms)
{
    snd_ctl_t *rawControl = nullptr;
    if (snd_ctl_open(&rawControl, ("hw:" + std::to_string(card)).c_str(), SND_CTL_NONBLOCK) < 0)
        return;
    const std::unique_ptr<snd_ctl_t, AlsaDeleter> control(rawControl);
    snd_pcm_info_t *info = nullptr;
    if (snd_pcm_info_malloc(&info) < 0)
        return;
    const std::unique_ptr<snd_pcm_info_t, AlsaDeleter> owner(info);
    char *cardName = nullptr;
    const std::string name = snd_card_get_name(card, &cardName) >= 0 ? cardName : "card";
    std::free(cardName);
    int device = -1;
    while (snd_ctl_pcm_next_device(rawControl, &device) >= 0 && device >= 0) {
        snd_pcm_info_set_device(info, static_cast<unsigned>(device));
        snd_pcm_info_set_subdevice(info, 0);
        snd_pcm_info_set_stream(info, SND_PCM_STREAM_PLAYBACK);
        if (snd_ctl_pcm_info(rawControl, info) >= 0)
            pcms.push_back({card, device, name + ", " + snd_pcm_info_get_name(info)});
    }
}

/// The text of a field of a configuration node; empty when there is none.
std::string textOf(snd_config_t *node, const char *key)
{
    snd_config_t *field = nullptr;
    const char *text = nullptr;
    if (snd_config_search(node, key, &field) >= 0 && snd_config_get_string(field, &text) >= 0 && text)
        return text;
    return {};
}

template<size_t size>
bool holds(const std::array<std::string_view, size> &list, std::string_view text)
{
    return std::find(list.begin(), list.end(), text) != list.end();
}

void addNamed(snd_config_t *node, std::vector<NamedPcm> &pcms)
{
    const char *id = nullptr;
    snd_config_t *found = nullptr;
    if (snd_config_get_id(node, &id) < 0 || !id || holds(libraryPcms, id) ||
        snd_config_get_type(node) != SND_CONFIG_TYPE_COMPOUND ||
        snd_config_search(node, "@args", &found) >= 0)
        return;
    const std::string type = textOf(node, "type");
    if (type.empty() || holds(captureTypes, type))
        return;
    if (type == "asym" && snd_config_search(node, "playback", &found) < 0)
        return;
    const std::string description = textOf(node, "hint.description");
    pcms.push_back({id, description.empty() ? "ALSA PCM of type " + type : description});
}

} // namespace

std::vector<CardPcm> cardPcms()
{
    const AlsaMessages quiet;
    std::vector<CardPcm> pcms;
    int card = -1;
    while (snd_card_next(&card) >= 0 && card >= 0)
        addDevices(card, pcms);
    return pcms;
}

std::vector<NamedPcm> namedPcms()
{
    const AlsaMessages quiet;
    std::vector<NamedPcm> pcms;
    // A tree of our own: the library's global one is read once and shared with all threads.
    snd_config_t *rawTop = nullptr;
    snd_config_update_t *rawUpdate = nullptr;
    if (snd_config_update_r(&rawTop, &rawUpdate, nullptr) < 0)
        return pcms;
    const std::unique_ptr<snd_config_t, AlsaDeleter> top(rawTop);
    const std::unique_ptr<snd_config_update_t, AlsaDeleter> update(rawUpdate);
    snd_config_t *section = nullptr;
    if (snd_config_search(rawTop, "pcm", &section) < 0)
        return pcms;
    for (snd_config_iterator_t i = snd_config_iterator_first(section); i != snd_config_iterator_end(section);
         i = snd_config_iterator_next(i))
        addNamed(snd_config_iterator_entry(i), pcms);
    return pcms;
}

} // namespace kelp_core
