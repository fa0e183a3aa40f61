#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace test_devices {

/// A folder of its own that stands for the user's home and runtime directory while it lives, in this
/// process's environment, with no session bus, no display and no sound server in reach, and with ALSA's idea
/// of the configuration read anew. Make it before any thread; one at a time. Removed with all that is in it.
class PrivatePlace
{
public:
    PrivatePlace();
    ~PrivatePlace();
    PrivatePlace(const PrivatePlace &) = delete;
    PrivatePlace &operator=(const PrivatePlace &) = delete;

    const std::string &folder() const { return folder_; }
    std::string file(const std::string &name) const { return folder_ + "/" + name; }
    /// Sets a variable, or removes it for nothing, until the place goes.
    void setVariable(const std::string &name, const std::optional<std::string> &value);

    /// Writes the .asoundrc of this home and makes ALSA read it.
    void writeAlsaConfig(const std::string &text);
    /// Adds a PCM of that name that writes all it is given, as raw samples, to the file it returns.
    std::string addCapturePcm(const std::string &name);

private:
    std::string folder_;
    std::string alsaConfig_;
    std::vector<std::pair<std::string, std::optional<std::string>>> saved_;
};

/// All bytes of a file; empty when it is not there.
std::string readFile(const std::string &path);

} // namespace test_devices
