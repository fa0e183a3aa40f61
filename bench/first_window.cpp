// Starts a program and prints the milliseconds until its first window of at least 300 × 200 is mapped and
// holds three colours or more near its top, then ends the program. Runs on a display without a window
// manager, so that only the program counts, and waits for the server's word of each new window and of each
// drawing into it: who asks again and again takes a core and the server from the program being timed.
//
// usage: first_window PROGRAM [ARGUMENT …]

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/Xdamage.h>
#undef None

#include <chrono>
#include <csignal>
#include <cstdio>
#include <poll.h>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

using Clock = std::chrono::steady_clock;

constexpr int minWidth = 300;
constexpr int minHeight = 200;
constexpr auto patience = std::chrono::seconds(30);
/// How often we look whether the program has ended without a window.
constexpr int lookAtChildMs = 200;

// A window may vanish between its event and our look at it; that is no error of ours.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

bool isLargeEnough(Display *display, Window window)
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsViewable &&
           attributes.width >= minWidth && attributes.height >= minHeight;
}

/// By one column of it: whoever asks for more keeps the server, and with it the program, from painting.
bool isPainted(Display *display, Window window)
{
    XImage *image = XGetImage(display, window, minWidth / 2, 0, 1, minHeight, AllPlanes, ZPixmap);
    if (!image)
        return false;
    std::set<unsigned long> colours;
    for (int y = 0; y < minHeight; ++y)
        colours.insert(XGetPixel(image, 0, y));
    XDestroyImage(image);
    return colours.size() >= 3;
}

/// The server's events up to the moment when one of the windows is painted.
class Watch
{
public:
    /// \a damageEvent is the number of the damage extension's first event.
    Watch(Display *display, int damageEvent)
        : m_display(display)
        , m_damageEvent(damageEvent)
    {
    }

    /// Takes the events that are there; true when one of them completes the picture.
    bool takeEvents()
    {
        while (XPending(m_display) > 0) {
            XEvent event;
            XNextEvent(m_display, &event);
            if (const Window window = touched(event); window && isPainted(m_display, window))
                return true;
        }
        return false;
    }

private:
    /// The window that may have been painted; 0 when the event tells of none.
    Window touched(const XEvent &event)
    {
        if (event.type == MapNotify && isLargeEnough(m_display, event.xmap.window)) {
            XDamageCreate(m_display, event.xmap.window, XDamageReportNonEmpty);
            return event.xmap.window;
        }
        if (event.type == m_damageEvent + XDamageNotify) {
            const auto &damage = reinterpret_cast<const XDamageNotifyEvent &>(event);
            XDamageSubtract(m_display, damage.damage, 0, 0); // else the server does not speak again
            return damage.drawable;
        }
        return 0;
    }

    Display *m_display;
    int m_damageEvent;
};

pid_t begin(char **command)
{
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        execvp(command[0], command);
        _exit(127);
    }
    return child;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s PROGRAM [ARGUMENT …]\n", argv[0]);
        return 2;
    }
    Display *display = XOpenDisplay(nullptr);
    int damageEvent = 0;
    int damageError = 0;
    if (!display || !XDamageQueryExtension(display, &damageEvent, &damageError)) {
        std::fprintf(stderr, display ? "the display does not tell of drawing\n" : "no display\n");
        return 1;
    }
    XSetErrorHandler(ignoreError);
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);
    Watch watch(display, damageEvent);
    const auto start = Clock::now();
    const pid_t child = begin(argv + 1);
    double elapsedMs = -1.0;
    while (Clock::now() - start < patience) {
        if (watch.takeEvents()) {
            elapsedMs = std::chrono::duration<double, std::milli>(Clock::now() - start).count();
            break;
        }
        pollfd events{ConnectionNumber(display), POLLIN, 0};
        if (poll(&events, 1, lookAtChildMs) == 0 && waitpid(child, nullptr, WNOHANG) == child) {
            std::fprintf(stderr, "%s ended without a window\n", argv[1]);
            return 1;
        }
    }
    kill(-child, SIGKILL);
    waitpid(child, nullptr, 0);
    XCloseDisplay(display);
    std::printf("%.1f\n", elapsedMs);
    return elapsedMs < 0 ? 1 : 0;
}
