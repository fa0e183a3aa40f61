// A thousand track changes in one in-process session and two hundred rebuilt sessions, with the real window,
// the real engine and its clocked null device: memory, descriptors and threads stay where they were.
//
// usage: soak_test FIRST_TRACK SECOND_TRACK   (of the same format, minutes long, so that none ends by itself)

#include "platform/memory_layout.h"
#include "platform/process_facts.h"
#include "tests/support/process_count.h"
#include "tests/support/sanitizers.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QComboBox>
#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <chrono>
#include <cstdio>
#include <functional>
#include <limits>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int trackChanges = 1000;
constexpr int sessionRebuilds = 200;
constexpr int warmUp = 100;
using kelp_test::patienceMs;

struct Footprint
{
    int descriptors = 0;
    int threads = 0;
    double residentMiB = 0;
};

/// What is held once the session before has let go of all: with no more descriptors and threads than then, or
/// after all patience.
Footprint footprint(const Footprint &before)
{
    Footprint now{kelp_test::fallsTo(before.descriptors, kelp_test::openDescriptors),
                  kelp_test::fallsTo(before.threads, kelp_test::runningThreads), 0};
    QFile status(u"/proc/self/status"_s);
    if (status.open(QIODevice::ReadOnly)) {
        for (const QByteArray &line : status.readAll().split('\n')) {
            if (line.startsWith("VmRSS:"))
                now.residentMiB = line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
        }
    }
    return now;
}

/// Before all: a flusher sleeps for up to 50 ms before it sees the end of its session; then the count is
/// taken.
Footprint firstFootprint()
{
    std::this_thread::sleep_for(std::chrono::milliseconds(200));
    constexpr int any = std::numeric_limits<int>::max();
    return footprint({any, any, 0});
}

/// Runs the event loop until the condition holds; ends the test when it does not within the patience.
void waitFor(const char *what, const std::function<bool()> &condition)
{
    const QDeadlineTimer deadline(patienceMs);
    while (!condition()) {
        if (deadline.hasExpired()) {
            std::fprintf(stderr, "%s did not happen within %d s\n", what, patienceMs / 1000);
            std::exit(1);
        }
        QCoreApplication::processEvents();
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

/// What the log pane holds grows with its lines up to its bound; a megabyte a hundred changes would be a
/// leak. A sanitizer keeps what is freed, and finds leaks by itself.
constexpr double mostGrowthMiB = KELP_TEST_ADDRESS_SANITIZER || KELP_TEST_THREAD_SANITIZER
                                     ? std::numeric_limits<double>::infinity()
                                     : 10.0;

/// Keeps the line in `report`: standard output leads to the engine's pipe while a session runs.
bool same(const char *what, const Footprint &before, const Footprint &after, QString &report)
{
    report += QString::asprintf("%s: descriptors %d -> %d, threads %d -> %d, resident %.1f -> %.1f MiB\n",
                                what, before.descriptors, after.descriptors, before.threads, after.threads,
                                before.residentMiB, after.residentMiB);
    return after.descriptors <= before.descriptors && after.threads <= before.threads &&
           after.residentMiB <= before.residentMiB + mostGrowthMiB;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s FIRST_TRACK SECOND_TRACK\n", argv[0]);
        return 2;
    }
    keepMemoryTogether();
    QApplication application(argc, argv);
    QTemporaryDir settings;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings.path());
    QSettings::setPath(QSettings::IniFormat, QSettings::SystemScope, settings.path());
    QCoreApplication::setOrganizationName(u"KELP"_s);
    QCoreApplication::setApplicationName(u"KelpPlayer"_s);
    qputenv("KELP_GUI_INPROC", "1");

    PlayerGuiWindow window({.asksBeforeClosing = false});
    window.show();
    settleHeap(); // as the program does when its first picture stands
    window.widgets().device->addItem(u"null"_s, u"null"_s);
    window.widgets().device->setCurrentIndex(window.widgets().device->count() - 1);
    window.appendFile(QString::fromLocal8Bit(argv[1]));
    window.appendFile(QString::fromLocal8Bit(argv[2]));

    // A track has announced itself when its first frame was heard; the next choice comes at once behind it.
    const auto change = [&](int number) {
        window.jumpToRow(number % 2);
        waitFor("the track's start", [&] { return window.trackAnnounced(); });
    };
    for (int i = 0; i < warmUp; ++i)
        change(i);
    QString report;
    Footprint before = firstFootprint();
    for (int i = 0; i < trackChanges; ++i)
        change(i);
    bool good = same("1000 track changes in one session", before, footprint(before), report);

    const auto rebuild = [&](int number) {
        window.stopPlayback();
        waitFor("the session's end", [&] { return !window.sessionRuns(); });
        QCoreApplication::processEvents();
        window.jumpToRow(number % 2);
        waitFor("the track's start", [&] { return window.trackAnnounced(); });
    };
    for (int i = 0; i < warmUp / 5; ++i)
        rebuild(i);
    before = firstFootprint();
    for (int i = 0; i < sessionRebuilds; ++i)
        rebuild(i);
    good = same("200 rebuilt sessions", before, footprint(before), report) && good;

    window.killProc(true);
    std::fputs(qPrintable(report), stdout);
    return good ? 0 : 1;
}
