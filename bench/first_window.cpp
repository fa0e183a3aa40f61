// Starts a program and prints the milliseconds until its first window of at least 300 × 200 is mapped and
// holds more than one colour, then ends the program. Runs on a display without a window manager, so that only
// the program counts.
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
constexpr int lines = 24;
constexpr auto patience = std::chrono::seconds(30);

// A window may vanish between its event and our look at it; that is no error of ours.
int ignoreError(Display *, XErrorEvent *)
{
    return 0;
}

bool isPainted(Display *display, Window window)
{
    XWindowAttributes attributes;
    if (XGetWindowAttributes(display, window, &attributes) == 0 || attributes.map_state != IsViewable ||
        attributes.width < minWidth || attributes.height < minHeight)
        return false;
    // Single lines: a picture of the whole window would keep the server from taking what the program paints.
    std::set<unsigned long> colours;
    for (int line = 1; line < lines && colours.size() < 3; ++line) {
        XImage *image = XGetImage(display, window, 0, attributes.height * line / lines,
                                  static_cast<unsigned>(attributes.width), 1, AllPlanes, ZPixmap);
        if (!image)
            return false;
        for (int x = 0; x < attributes.width && colours.size() < 3; ++x)
            colours.insert(XGetPixel(image, x, 0));
        XDestroyImage(image);
    }
    return colours.size() >= 3;
}

bool anyPainted(Display *display)
{
    Window root = DefaultRootWindow(display);
    Window parent = 0;
    Window *children = nullptr;
    unsigned count = 0;
    if (XQueryTree(display, root, &root, &parent, &children, &count) == 0)
        return false;
    bool painted = false;
    for (unsigned i = 0; i < count && !painted; ++i)
        painted = isPainted(display, children[i]);
    if (children)
        XFree(children);
    return painted;
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
    while (std::chrono::steady_clock::now() - start < patience) {
        if (anyPainted(display)) {
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
