#include "app/crash_guard.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

QString crashGuardText(const QString &function, const std::exception *exception)
{
    const QString what = exception != nullptr ? QString::fromLocal8Bit(exception->what())
                                              : QCoreApplication::translate("CrashGuard", "未知异常");
    return u"[crash-guard] %1: %2"_s.arg(function, what);
}
