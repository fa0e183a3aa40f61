#include "app/gui_log_file.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>

using namespace Qt::StringLiterals;

namespace {

QString logPath(const GuiLogFacts &facts)
{
    if (facts.environmentPath == "0"_L1)
        return {};
    if (!facts.environmentPath.isEmpty())
        return facts.environmentPath;
    return facts.tempDir + u"/kelp-gui-%1.log"_s.arg(facts.processId);
}

} // namespace

GuiLogFile::GuiLogFile(const GuiLogFacts &facts)
    : m_path(logPath(facts))
    , m_timeStamps(facts.timeStamps)
{
}

const GuiLogFile &GuiLogFile::ofProcess()
{
    static const GuiLogFile file({qEnvironmentVariable("KELP_GUI_LOG"), QDir::tempPath(),
                                  QCoreApplication::applicationPid(),
                                  qEnvironmentVariableIsSet("KELP_GUI_LOG_TS")});
    return file;
}

QString GuiLogFile::formatted(const QString &text, bool timeStamps, QTime now)
{
    return timeStamps ? u"[%1] %2"_s.arg(now.toString(u"HH:mm:ss.zzz"), text) : text;
}

void GuiLogFile::write(const QString &text) const
{
    if (m_path.isEmpty())
        return;
    QFile file(m_path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append))
        return;
    file.write((formatted(text, m_timeStamps, QTime::currentTime()) + u'\n').toUtf8());
}
