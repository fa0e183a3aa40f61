/// \file
/// Standard streams that can be written to, however the program was started.
#pragma once

/// Opens the null device onto each of the descriptors 0, 1 and 2 that is closed. Without this the next file
/// that is opened takes the number, and whatever prints would write into that file.
void ensureStandardStreams();
