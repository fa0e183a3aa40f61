#include "app/heartbeat.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTimer>

#include <atomic>
#include <chrono>
#include <thread>

using namespace Qt::StringLiterals;

namespace heartbeat {

namespace {

constexpr std::chrono::milliseconds beat(20);
/// Beats without a change at which, and at each multiple of which, a stall is reported.
constexpr int reportEveryBeats = 200;

std::atomic<unsigned long> beats{0};
std::atomic<bool> loopLeft{false};

QString stallLogPath()
{
    const QString path = qEnvironmentVariable("KELP_GUI_STALL_LOG");
    return path.isEmpty() ? QDir::tempPath() + u"/kelp-stall-sample.log"_s : path;
}

void sampleStalls(const QString &logPath)
{
    unsigned long seen = count();
    int stalledBeats = 0;
    while (!eventLoopLeft()) {
        std::this_thread::sleep_for(beat);
        if (const unsigned long now = count(); now != seen) {
            seen = now;
            stalledBeats = 0;
            continue;
        }
        if (++stalledBeats % reportEveryBeats != 0)
            continue;
        QFile file(logPath);
        if (file.open(QIODevice::WriteOnly | QIODevice::Append))
            file.write(u"STALLSAMPLE stall_ms=%1\n"_s.arg(stalledBeats * beat.count()).toUtf8());
    }
}

} // namespace

void start()
{
    auto *timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [] { beats.fetch_add(1); });
    timer->start(beat);
}

unsigned long count()
{
    return beats.load();
}

void setEventLoopLeft()
{
    loopLeft.store(true);
}

bool eventLoopLeft()
{
    return loopLeft.load();
}

void startStallSampler()
{
    std::thread(sampleStalls, stallLogPath()).detach();
}

} // namespace heartbeat
