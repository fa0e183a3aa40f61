#include "engine/control_closure.h"

#include <QCoreApplication>
#include <algorithm>

namespace {

/// Lines still on their way when the account is drawn up are no loss.
constexpr qint64 leastTolerance = 8;

QString text(const char *source)
{
    return QCoreApplication::translate("ControlClosure", source);
}

} // namespace

QList<ControlClosureLine> closureVerdict(const ControlClosureFacts &facts)
{
    if (!facts.receivedCount && facts.queued != 0) {
        return {{text(QT_TRANSLATE_NOOP(
                          "ControlClosure",
                          "[控制] 闭合: 已下发 %1 条命令, 但本次运行没有引擎会话日志 —— 两端无法对账"))
                     .arg(facts.queued),
                 true}};
    }
    const qint64 received = facts.receivedCount.value_or(0);
    const qint64 difference = std::abs(facts.queued - received);
    const qint64 tolerance = std::max(leastTolerance, facts.queued / 10);
    const bool passed = difference <= tolerance;
    const QString verdict = passed ? text(QT_TRANSLATE_NOOP("ControlClosure", "通过"))
                                   : text(QT_TRANSLATE_NOOP("ControlClosure", "超差(差 %1 > 容差 %2)"))
                                         .arg(difference)
                                         .arg(tolerance);
    QList<ControlClosureLine> lines{
        {text(QT_TRANSLATE_NOOP("ControlClosure", "[控制] 闭合: queued=%1 recv=%2 diff=%3 —— %4"))
             .arg(facts.queued)
             .arg(received)
             .arg(difference)
             .arg(verdict),
         !passed}};
    if (!facts.source.isEmpty())
        lines.append(
            {text(QT_TRANSLATE_NOOP("ControlClosure", "[控制] 闭合账来源: %1")).arg(facts.source), false});
    return lines;
}
