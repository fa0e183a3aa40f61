// What 10,000 telemetry lines and 500 log lines a second cost the GUI thread, and whether anything is lost.
//
// usage: telemetry_load [SECONDS]    a whole window on no display, private settings, a session that plays
// nothing
#include "app/settings_store.h"
#include "platform/process_facts.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <ctime>
#include <thread>

using namespace Qt::StringLiterals;

namespace {

constexpr int telemetryPerSec = 10000;
constexpr int logLinesPerSec = 500;
constexpr int burstsPerSec = 500;
constexpr int warmLines = 6000; ///< more than the pane holds
constexpr int tickMs = 20;
constexpr auto logMark = "load line "_L1;

/// Plays nothing and takes every line.
class SilentSession final : public PlayerSession
{
public:
    int start(const QString &, const QStringList &) override
    {
        m_running = true;
        return session_code::ok;
    }
    bool isRunning() const override { return m_running; }
    int writeLine(const QString &line, bool &flushed) override
    {
        flushed = true;
        return static_cast<int>(line.size()) + 1;
    }
    bool isQueuedWrite() const override { return true; }
    QString lastError() const override { return {}; }
    int stop(int) override
    {
        m_running = false;
        return session_code::ok;
    }
    bool waitFinished(int) override
    {
        m_running = false;
        return true;
    }
    void terminate() override {}
    void kill() override {}
    bool canBeKilled() const override { return false; }
    bool isInProcess() const override { return true; }
    void close() override {}
    void poll() override {}

private:
    bool m_running = false;
};

double threadCpuSec()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

QString telemetryLine(int number)
{
    switch (number % 3) {
    case 0:
        return u"LVL -%1 -%2\n"_s.arg(number % 600 / 10., 0, 'f', 2).arg(number % 500 / 10., 0, 'f', 2);
    case 1: {
        QString line = u"SPC 44100 64 "_s;
        for (int band = 0; band < 64; ++band)
            line += QString::number((number + band * 5) % 256, 16).rightJustified(2, u'0');
        return line + u'\n';
    }
    default:
        // A long track: a position a second, as the listener sees it.
        return u"PG %1 %2 3600.0\n"_s.arg(number / 360000., 0, 'f', 3).arg(number / 10000., 0, 'f', 3);
    }
}

/// The engine's thread: even bursts, so that the rate is what it says.
void talk(const PlayerSession::LineSink &sink, int seconds, std::atomic<bool> &done)
{
    const auto begin = std::chrono::steady_clock::now();
    int telemetry = 0;
    int logged = 0;
    for (int burst = 1; burst <= seconds * burstsPerSec; ++burst) {
        for (; telemetry < burst * telemetryPerSec / burstsPerSec; ++telemetry)
            sink(telemetryLine(telemetry), false);
        for (; logged < burst * logLinesPerSec / burstsPerSec; ++logged)
            sink(logMark + QString::number(logged) + u'\n', false);
        std::this_thread::sleep_until(begin + burst * std::chrono::microseconds(1000000 / burstsPerSec));
    }
    done = true;
}

/// Lines lost and lines out of order in the log file.
std::pair<int, int> checkLog(const QString &path, int expected)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {expected, 0};
    int found = 0;
    int reordered = 0;
    int last = -1;
    for (const QByteArray &line : file.readAll().split('\n')) {
        const QString text = QString::fromUtf8(line);
        if (!text.startsWith(logMark))
            continue;
        const int number = text.mid(logMark.size()).toInt();
        reordered += number > last ? 0 : 1;
        last = number;
        ++found;
    }
    return {expected - found, reordered};
}

void runUntil(const std::function<bool()> &condition)
{
    QTimer look;
    QEventLoop loop;
    QObject::connect(&look, &QTimer::timeout, &loop, [&] {
        if (condition())
            loop.quit();
    });
    look.start(tickMs);
    loop.exec();
}

double megabytes(const std::optional<qint64> &bytes)
{
    return static_cast<double>(bytes.value_or(0)) / (1024. * 1024.);
}

void measureLoad(const PlayerSession::LineSink &sink, const QString &logPath, int seconds)
{
    // What is bounded is filled first: the log pane, pools, the fonts' caches.
    for (int line = 0; line < warmLines; ++line)
        sink(u"warm line %1\n"_s.arg(line), false);
    std::atomic<bool> warm{false};
    std::thread warmer(
        talk,
        [&sink](const QString &line, bool) {
            if (!line.startsWith(logMark))
                sink(line, false);
        },
        1, std::ref(warm));
    runUntil([&warm] { return warm.load(); });
    warmer.join();

    const double rssBefore = megabytes(residentBytes());
    const double cpuBefore = threadCpuSec();
    QElapsedTimer clock;
    clock.start();
    std::atomic<bool> done{false};
    std::thread engine(talk, sink, seconds, std::ref(done));
    runUntil([&done] { return done.load(); });
    const double wallSec = static_cast<double>(clock.nsecsElapsed()) * 1e-9;
    const double busySec = threadCpuSec() - cpuBefore;
    engine.join();
    QCoreApplication::sendPostedEvents();
    const double rssAfter = megabytes(residentBytes());
    const auto [lost, reordered] = checkLog(logPath, seconds * logLinesPerSec);
    std::printf("telemetry lines/s %d, log lines/s %d, for %.1f s\n", telemetryPerSec, logLinesPerSec,
                wallSec);
    std::printf("GUI thread idle %.1f %%\n", 100. * (1. - busySec / wallSec));
    std::printf("log lines lost %d, reordered %d\n", lost, reordered);
    std::printf("RSS before %.1f MiB, after %.1f MiB\n", rssBefore, rssAfter);
}

void measureHangingProbe(PlayerGuiWindow &window)
{
    qputenv("KELP_GUI_PROBE_HANG", "1");
    QElapsedTimer since;
    qint64 longestNs = 0;
    int ticks = 0;
    QTimer timer;
    timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&timer, &QTimer::timeout, [&] {
        longestNs = std::max(longestNs, since.nsecsElapsed());
        since.start();
        ++ticks;
    });
    bool answered = false;
    since.start();
    timer.start(tickMs);
    window.expandContainerAsync(u"/no/such/sheet.cue"_s, [&answered](int) { answered = true; });
    runUntil([&answered] { return answered; });
    std::printf("hanging probe: %d ticks of %d ms, longest wait %.1f ms\n", ticks, tickMs,
                static_cast<double>(longestNs) * 1e-6);
}

} // namespace

int main(int argc, char **argv)
{
    const QTemporaryDir root;
    const QString logPath = root.filePath(u"gui.log"_s);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("KELP_SETTINGS_DIR", QFile::encodeName(root.path()));
    qputenv("KELP_GUI_LOG", QFile::encodeName(logPath));
    qputenv("KELP_PLAYER_BIN", "/bin/true");
    QApplication application(argc, argv);
    applySettingsDirOverride();
    const int seconds = argc > 1 ? std::max(1, QString::fromLocal8Bit(argv[1]).toInt()) : 10;

    PlayerSession *session = nullptr;
    WindowOptions options;
    options.asksBeforeClosing = false;
    options.makeSession = [&session](QObject *, const SessionOptions &) {
        auto made = std::make_unique<SilentSession>();
        session = made.get();
        return made;
    };
    PlayerGuiWindow window(options);
    window.show();
    window.widgets().logSwitch->setChecked(true);
    window.ensureSession();
    session->start({}, {});
    measureLoad(session->lineSink, logPath, seconds);
    measureHangingProbe(window);
    return 0;
}
