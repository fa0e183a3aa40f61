#include "player_core/probe/probe_answer.h"

#include <unistd.h>

namespace kelp_core {

int printAnswer(const ProbeAnswer &answer)
{
    size_t done = 0;
    while (done < answer.text.size()) {
        const ssize_t n = ::write(STDOUT_FILENO, answer.text.data() + done, answer.text.size() - done);
        if (n <= 0)
            break;
        done += static_cast<size_t>(n);
    }
    return answer.code;
}

} // namespace kelp_core
