#include "player_core/output/alsa_messages.h"

#include <alsa/asoundlib.h>

#include <algorithm>
#include <array>
#include <cstdarg>
#include <cstdio>
#include <mutex>

namespace kelp_core {
namespace {

constexpr size_t maxMessageChars = 400;

thread_local AlsaMessages *current = nullptr;

} // namespace

namespace {

/// Each step of ALSA's configuration reader repeats the failure of the step before it; only the first tells
/// a listener something.
bool repeatsAnother(const std::string &message)
{
    return message.find(" returned error: ") != std::string::npos ||
           message.starts_with("error evaluating") || message.starts_with("Evaluate error") ||
           message.starts_with("Unknown PCM");
}

} // namespace

void takeAlsaMessage(const std::string &message)
{
    if (!current || current->text_.size() > maxMessageChars || repeatsAnother(message))
        return;
    std::string line = message;
    // One line, and no apostrophes: a reader of our lines takes "device '" for a missing endpoint.
    std::replace_if(
        line.begin(), line.end(), [](char c) { return c == '\n' || c == '\r'; }, ' ');
    std::replace(line.begin(), line.end(), '\'', '"');
    if (!current->text_.empty())
        current->text_ += "; ";
    current->text_ += line.substr(0, maxMessageChars);
}

namespace {

extern "C" void handleAlsaMessage(const char *, int, const char *, int, const char *format, ...)
    __attribute__((format(printf, 5, 6)));

extern "C" void handleAlsaMessage(const char *, int, const char *, int, const char *format, ...)
{
    if (!current)
        return;
    std::array<char, maxMessageChars> line{};
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(line.data(), line.size(), format, arguments);
    va_end(arguments);
    takeAlsaMessage(line.data());
}

} // namespace

AlsaMessages::AlsaMessages()
{
    static std::once_flag once;
    std::call_once(once, [] { snd_lib_error_set_handler(handleAlsaMessage); });
    current = this;
}

AlsaMessages::~AlsaMessages()
{
    current = nullptr;
}

std::string alsaErrorText(int error)
{
    std::string text = snd_strerror(error);
    if (!text.empty() && text[0] >= 'A' && text[0] <= 'Z' && (text.size() < 2 || text[1] >= 'a'))
        text[0] = static_cast<char>(text[0] - 'A' + 'a');
    return text;
}

} // namespace kelp_core
