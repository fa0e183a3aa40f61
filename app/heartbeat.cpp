#include "app/heartbeat.h"

#include "app/stall_sampler.h"

#include <QCoreApplication>
#include <QDir>
#include <QTimer>

#include <atomic>
#include <chrono>

namespace heartbeat {

namespace {

constexpr std::chrono::milliseconds beat(stallStepMs);

std::atomic<unsigned long> beats{0};
std::atomic<bool> loopLeft{false};

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
    const QString path = stallLogPath(qEnvironmentVariable("KELP_GUI_STALL_LOG"), QDir::tempPath());
    ::startStallSampler(currentSystemThreadId(), count, eventLoopLeft, path).detach();
}

} // namespace heartbeat
