#include "playback/chain_report_text.h"

#include "playback/chain_rows.h"

using namespace Qt::StringLiterals;

QString chainReportHtml(const QString &line)
{
    return chainLineWarns(line) ? u"<span style='color:#c0392b'>%1</span>"_s.arg(line.toHtmlEscaped())
                                : QString();
}

QString chainReportPath(const QString &folder, const QDateTime &now)
{
    return folder + "/kelp-signal-chain-"_L1 + now.toString(u"yyyyMMdd-HHmmss"_s) + ".txt"_L1;
}

QByteArray chainReportBytes(const QStringList &lines)
{
    QByteArray bytes;
    for (const QString &line : lines)
        bytes += line.toUtf8() + '\n';
    return bytes;
}
