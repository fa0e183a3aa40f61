#include "engine/device_reset.h"

#include <QCoreApplication>
#include <QProcess>

using namespace Qt::StringLiterals;

namespace {

constexpr int runWaitMs = 5000;
constexpr int killWaitMs = 2000;

QString translated(const char *source)
{
    return QCoreApplication::translate("DeviceReset", source);
}

} // namespace

void resetDeviceAfterKill(const QString &playerBin, const QString &reason, const ProbeLog &log)
{
    if (playerBin.isEmpty())
        return;
    QProcess process;
    process.start(playerBin, {u"-reset-device"_s});
    const bool finished = process.waitForFinished(runWaitMs) || process.state() == QProcess::NotRunning;
    if (!finished) {
        process.kill();
        process.waitForFinished(killWaitMs);
    }
    if (!log)
        return;
    if (finished && process.error() != QProcess::FailedToStart)
        log(translated(QT_TRANSLATE_NOOP("DeviceReset", "%1 ⇒ -reset-device rc=%2 (设备已清)"))
                .arg(reason, QString::number(process.exitCode())),
            false);
    else
        log(translated(QT_TRANSLATE_NOOP("DeviceReset", "设备复位 (-reset-device) 超时：%1")).arg(reason),
            true);
}
