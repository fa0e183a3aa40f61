#pragma once

#include <string>

namespace kelp_core {

/// Takes in what the ALSA library would print on standard error while it stands, for the calling thread, and
/// keeps it from being printed. Messages outside of such a scope are dropped: they repeat what the return
/// values say. One scope a thread at a time.
class AlsaMessages
{
public:
    AlsaMessages();
    ~AlsaMessages();
    AlsaMessages(const AlsaMessages &) = delete;
    AlsaMessages &operator=(const AlsaMessages &) = delete;

    /// What was said since construction, as one line; empty when nothing was.
    std::string text() const { return text_; }

private:
    friend void takeAlsaMessage(const std::string &message);
    std::string text_;
};

/// ALSA's words for a negative error number, as a part of a sentence: "no such device".
std::string alsaErrorText(int error);

} // namespace kelp_core
