#include "player_core/source/av_log.h"

#include <cstdarg>
#include <cstdio>
#include <mutex>

extern "C" {
#include <libavutil/error.h>
#include <libavutil/log.h>
}

namespace kelp_core {
namespace {

// A plain array: the callback may run on a codec's own thread at its very end, where objects with
// destructors are gone already.
thread_local char lastText[256] = "";

void keepErrors(void *, int level, const char *format, va_list arguments)
{
    if (level > AV_LOG_ERROR)
        return;
    char text[sizeof lastText];
    if (std::vsnprintf(text, sizeof text, format, arguments) <= 0)
        return;
    size_t length = 0;
    for (const char *from = text; *from; ++from) {
        const auto byte = static_cast<unsigned char>(*from);
        if (byte == '\n' && from[1] == '\0')
            break;
        // One printable line, whatever a damaged tag held.
        lastText[length++] = byte < 0x20 || byte > 0x7E ? ' ' : *from;
    }
    lastText[length] = '\0';
}

} // namespace

void quietAvLog()
{
    static std::once_flag once;
    std::call_once(once, [] { av_log_set_callback(keepErrors); });
}

std::string takeAvError()
{
    std::string text = lastText;
    lastText[0] = '\0';
    while (!text.empty() && (text.back() == ' ' || text.back() == '.'))
        text.pop_back();
    return text;
}

std::string avErrorWords(int code)
{
    char text[AV_ERROR_MAX_STRING_SIZE] = "";
    av_strerror(code, text, sizeof text);
    return text;
}

} // namespace kelp_core
