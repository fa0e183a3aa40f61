#include "support_devices/private_place.h"

#include <alsa/asoundlib.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

namespace test_devices {
namespace fs = std::filesystem;

PrivatePlace::PrivatePlace()
{
    std::string pattern = (fs::temp_directory_path() / "kelp_devices_XXXXXX").string();
    folder_ = ::mkdtemp(pattern.data());
    fs::create_directory(file("run"));
    fs::permissions(file("run"), fs::perms::owner_all);
    setVariable("HOME", folder_);
    setVariable("XDG_RUNTIME_DIR", file("run"));
    setVariable("XDG_CONFIG_HOME", file("config"));
    for (const char *name : {"DBUS_SESSION_BUS_ADDRESS", "DISPLAY", "WAYLAND_DISPLAY", "PULSE_SERVER",
                             "PULSE_SINK", "PULSE_COOKIE", "ALSA_CONFIG_PATH", "KELP_PLAYER_CONF", "APPDATA",
                             "USERPROFILE", "KELP_ENGINE_PACE"})
        setVariable(name, std::nullopt);
    snd_config_update_free_global();
}

PrivatePlace::~PrivatePlace()
{
    for (auto entry = saved_.rbegin(); entry != saved_.rend(); ++entry) {
        if (entry->second)
            ::setenv(entry->first.c_str(), entry->second->c_str(), 1);
        else
            ::unsetenv(entry->first.c_str());
    }
    snd_config_update_free_global();
    std::error_code ignored;
    fs::remove_all(folder_, ignored);
}

void PrivatePlace::setVariable(const std::string &name, const std::optional<std::string> &value)
{
    const char *old = std::getenv(name.c_str());
    saved_.emplace_back(name, old ? std::optional<std::string>(old) : std::nullopt);
    if (value)
        ::setenv(name.c_str(), value->c_str(), 1);
    else
        ::unsetenv(name.c_str());
}

void PrivatePlace::writeAlsaConfig(const std::string &text)
{
    alsaConfig_ = text;
    std::ofstream(file(".asoundrc")) << text;
    snd_config_update_free_global();
}

std::string PrivatePlace::addCapturePcm(const std::string &name)
{
    const std::string raw = file(name + ".raw");
    writeAlsaConfig(alsaConfig_ + "pcm." + name + " { type file slave.pcm \"null\" file \"" + raw +
                    "\" format \"raw\" }\n");
    return raw;
}

std::string readFile(const std::string &path)
{
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace test_devices
