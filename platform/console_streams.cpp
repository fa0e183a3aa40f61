#include "platform/console_streams.h"

#include <fcntl.h>
#include <unistd.h>

void ensureStandardStreams()
{
    for (int descriptor = STDIN_FILENO; descriptor <= STDERR_FILENO; ++descriptor) {
        if (fcntl(descriptor, F_GETFD) != -1)
            continue;
        // The lowest free number is taken, and all below this one are open by now.
        const int flags = descriptor == STDIN_FILENO ? O_RDONLY : O_WRONLY;
        if (open("/dev/null", flags) < 0)
            return;
    }
}
