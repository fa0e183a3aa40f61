// Starts a program and prints the milliseconds until its first window of at least 300 × 200 is mapped and
// holds three colours or more near its top, then ends the program. Runs on a display without a window
// manager, so that only the program counts.
//
// usage: first_window PROGRAM [ARGUMENT …]

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#undef None

#include <chrono>
#include <csignal>
#include <cstdio>
#include <set>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int minWidth = 300;
constexpr int minHeight = 200;
constexpr auto patience = std::chrono::seconds(30);

// A window may vanish between its event and our look at it; that is no error of ours.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

bool isMapped(Display *display, Window window)
{
    XWindowAttributes attributes;
    return XGetWindowAttributes(display, window, &attributes) != 0 && attributes.map_state == IsViewable &&
           attributes.width >= minWidth && attributes.height >= minHeight;
}

/// None as long as there is none.
Window mappedWindow(Display *display)
{
    Window root = DefaultRootWindow(display);
    Window parent = 0;
    Window *children = nullptr;
    unsigned count = 0;
    Window found = 0;
    if (XQueryTree(display, root, &root, &parent, &children, &count) == 0)
        return found;
    for (unsigned i = 0; i < count && !found; ++i)
        found = isMapped(display, children[i]) ? children[i] : 0;
    if (children)
        XFree(children);
    return found;
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

} // namespace

int main(int argc, char **argv)
{
    if (argc < 2) {
        std::fprintf(stderr, "usage: %s PROGRAM [ARGUMENT …]\n", argv[0]);
        return 2;
    }
    Display *display = XOpenDisplay(nullptr);
    if (!display) {
        std::fprintf(stderr, "no display\n");
        return 1;
    }
    XSetErrorHandler(ignoreError);
    const auto start = std::chrono::steady_clock::now();
    const pid_t child = fork();
    if (child == 0) {
        setpgid(0, 0);
        execvp(argv[1], argv + 1);
        _exit(127);
    }
    double elapsedMs = -1.0;
    Window window = 0;
    while (std::chrono::steady_clock::now() - start < patience) {
        if (!window)
            window = mappedWindow(display);
        if (window && isPainted(display, window)) {
            elapsedMs =
                std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count();
            break;
        }
        if (waitpid(child, nullptr, WNOHANG) == child) {
            std::fprintf(stderr, "%s ended without a window\n", argv[1]);
            return 1;
        }
        usleep(1000);
    }
    kill(-child, SIGKILL);
    waitpid(child, nullptr, 0);
    XCloseDisplay(display);
    std::printf("%.1f\n", elapsedMs);
    return elapsedMs < 0 ? 1 : 0;
}
