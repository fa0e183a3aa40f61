#include "engine/control_report.h"

#include <QCoreApplication>
#include <QStringList>

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 slowMs = 50;

QString resultText(const ControlSendFacts &facts)
{
    if (facts.bytes < 0)
        return u" -> noproc"_s;
    if (facts.queues)
        return u" -> queued %1B"_s.arg(facts.bytes);
    return u" -> %1B"_s.arg(facts.bytes) + (facts.flushed ? QString() : u"(not flushed)"_s);
}

} // namespace

ControlSendReport controlSendReport(const ControlSendFacts &facts)
{
    ControlSendReport report;
    report.taken = facts.hasSession && facts.bytes >= 1;
    report.counts = facts.queues && facts.bytes >= 0;
    if (facts.tookMs > slowMs)
        report.slowComplaint =
            QCoreApplication::translate("ControlReport", "[控制] 发送 %1 用了 %2 ms（应小于 1 ms）")
                .arg(facts.line)
                .arg(facts.tookMs);
    QString result = resultText(facts);
    if (!report.taken && facts.hasSession && !facts.sessionError.isEmpty())
        result += u" ["_s + facts.sessionError + u']';
    report.logText = QCoreApplication::translate("ControlReport", "[控制] %1").arg(facts.line + result);
    return report;
}

std::optional<QString> effectNameOf(const QString &line)
{
    if (!line.startsWith("fx "_L1))
        return std::nullopt;
    const QStringList words = line.split(u' ', Qt::SkipEmptyParts);
    if (words.size() < 2)
        return std::nullopt;
    return words.at(1);
}

bool expectsSound(const QString &line)
{
    return line.startsWith("play"_L1) || line.startsWith("load"_L1) || line.startsWith("resume"_L1);
}
