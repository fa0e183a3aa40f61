#include "platform/font_warm_up.h"

#include <fontconfig/fontconfig.h>
#include <system_error>
#include <thread>

void warmUpFonts()
{
    try {
        // The configuration is the library's own, guarded by itself, and stays until the process ends.
        std::thread([] { FcInit(); }).detach();
    } catch (const std::system_error &) {
        // The toolkit then reads it later.
    }
}
