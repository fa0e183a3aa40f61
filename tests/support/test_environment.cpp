// The environment of every test, however it is started: nothing of the user's language or settings. Linked
// into each test program.
#include <cstdlib>

namespace {

/// Before main(), so that nobody has looked yet.
[[gnu::constructor]] void enterTestEnvironment()
{
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("KELP_LANG", "en", 1);
    setenv("KELP_NO_UPDATE_CHECK", "1", 1);
    setenv("QT_QPA_PLATFORM", "offscreen", 0); // whoever wants to see a test asks for a display
}

} // namespace
