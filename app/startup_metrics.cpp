#include "app/startup_metrics.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

namespace {

QString unknownText()
{
    return QCoreApplication::translate("StartupMetrics", "未知");
}

QString durationText(std::optional<qint64> ms)
{
    if (!ms)
        return unknownText();
    if (*ms >= 1000)
        return QString::number(static_cast<double>(*ms) / 1000., 'f', 2) + u" s"_s;
    return QString::number(*ms) + u" ms"_s;
}

QString memoryText(std::optional<qint64> bytes)
{
    if (!bytes)
        return unknownText();
    constexpr double bytesPerMiB = 1024. * 1024.;
    return QString::number(static_cast<double>(*bytes) / bytesPerMiB, 'f', 1) + u" MiB"_s;
}

} // namespace

QString startupMetrics(std::optional<qint64> readyMs, std::optional<qint64> memoryBytes)
{
    return QCoreApplication::translate("StartupMetrics", "启动指标：界面就绪 %1，内存 %2（只列实测值）")
        .arg(durationText(readyMs), memoryText(memoryBytes));
}
