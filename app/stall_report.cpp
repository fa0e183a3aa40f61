#include "app/stall_report.h"

#include <QCoreApplication>

namespace {

constexpr qint64 tolerableLatenessMs = 400;

} // namespace

QString stallReport(qint64 sincePreviousMs, const QString &stage)
{
    const qint64 latenessMs = sincePreviousMs - stallTickMs;
    if (latenessMs <= tolerableLatenessMs)
        return {};
    const QString label = stage.isEmpty() ? QCoreApplication::translate("StallReport", "(未标记)") : stage;
    return QCoreApplication::translate("StallReport", "[stall] 界面线程卡住了 %1 ms —— 当时正在：%2")
        .arg(latenessMs)
        .arg(label);
}
