/// \file
/// Writing to a pipe whose reader may have gone.
#pragma once

#include <string_view>
#include <sys/types.h>

namespace kelp {

/// write(), but a pipe without a reader gives an error (EPIPE) and not the signal that ends the program.
/// Leaves the program's own handling of that signal alone. Any thread.
ssize_t writeWithoutSignal(int fd, std::string_view bytes);

} // namespace kelp
