#include "engine/engine_probe.h"

#include "engine/engine_library.h"
#include "engine/stage_label.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QFileInfo>
#include <QProcess>
#include <QProcessEnvironment>
#include <QtGlobal>
#include <algorithm>
#include <string>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

constexpr int startWaitMs = 2000;
constexpr int killWaitMs = 500;
constexpr int hangTestTimeoutMs = 1200;
constexpr int libraryBufferBytes = 1048576;
constexpr qsizetype stageTextLimit = 120;
/// No answer is this long; a program that floods must not eat the memory until its time is up.
constexpr qsizetype outputLimitBytes = 64 * 1024 * 1024;
constexpr int readStepMs = 50;

/// Of the running program and not of the probe: a probe must not write into the session's log, nor play the
/// hooks again when the program runs itself.
constexpr const char16_t *variablesNotPassedOn[] = {
    u"KELP_ENGINE_LOG",   u"KELP_INPROC",      u"KELP_INPROC_LOG",     u"KELP_GUI_LOG",
    u"KELP_GUI_AUTOPLAY", u"KELP_GUI_JUMP_AT", u"KELP_GUI_NEXT_AFTER", u"KELP_GUI_STOP_AFTER"};

QString translated(const char *source)
{
    return QCoreApplication::translate("EngineProbe", source);
}

/// What is run, and what it is called in the messages.
struct ProbeCommand
{
    QString program;
    QStringList args;
    QString name;
    int timeoutMs = 0;
};

ProbeCommand probeCommand(const QString &playerBin, const QStringList &args, int timeoutMs)
{
    if (!qEnvironmentVariableIsEmpty("KELP_GUI_PROBE_HANG")) {
        return {u"/bin/sh"_s,
                {u"-c"_s, u"exec sleep 60"_s},
                u"KELP_GUI_PROBE_HANG self-test"_s,
                hangTestTimeoutMs};
    }
    return {playerBin.isEmpty() ? QCoreApplication::applicationFilePath() : playerBin, args, args.join(u' '),
            timeoutMs};
}

/// The folder of the first operand that is a file, so that what the file refers to is found beside it.
QString workingDirectory(const QStringList &args)
{
    for (const QString &arg : args) {
        if (arg.startsWith(u'-'))
            continue;
        if (const QFileInfo info(arg); info.isFile())
            return info.absolutePath();
    }
    return {};
}

void configure(QProcess &process, const ProbeCommand &command, const QStringList &args)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char16_t *name : variablesNotPassedOn)
        environment.remove(QString::fromUtf16(name));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::MergedChannels);
    process.setStandardInputFile(QProcess::nullDevice());
    if (const QString directory = workingDirectory(args); !directory.isEmpty())
        process.setWorkingDirectory(directory);
    process.setProgram(command.program);
    process.setArguments(command.args);
}

void collect(QProcess &process, QByteArray &output)
{
    const QByteArray bytes = process.readAllStandardOutput();
    output.append(bytes.left(std::max<qsizetype>(0, outputLimitBytes - output.size())));
}

/// False on a time-out.
bool waitForEnd(QProcess &process, int timeoutMs, QByteArray &output)
{
    const QDeadlineTimer deadline(timeoutMs);
    while (process.state() != QProcess::NotRunning && !deadline.hasExpired()) {
        process.waitForFinished(static_cast<int>(std::min<qint64>(readStepMs, deadline.remainingTime())));
        collect(process, output);
    }
    collect(process, output);
    return process.state() == QProcess::NotRunning;
}

PlayerProbeResult timedOutResult(QProcess &process, const ProbeCommand &command, const ProbeLog &log)
{
    process.kill();
    process.waitForFinished(killWaitMs);
    if (log)
        log(translated(QT_TRANSLATE_NOOP("EngineProbe",
                                         "探测超时（%1 ms）：%2 —— 已结束该子进程，界面继续运行"
                                         "（KELP_GUI_PROBE_HANG 自检时属预期）"))
                .arg(command.timeoutMs)
                .arg(command.name),
            true);
    return {session_code::timedOut,
            u"[probe] timed out after %1 ms (%2) -- killed"_s.arg(command.timeoutMs).arg(command.name)};
}

void logResult(int rc, const QByteArray &output, const ProbeCommand &command, const ProbeLog &log)
{
    if (!log)
        return;
    if (qEnvironmentVariableIsSet("KELP_GUI_PROBE_TRACE"))
        log(u"[probe] %1 rc=%2 bytes=%3"_s.arg(command.name, QString::number(rc),
                                               QString::number(output.size())),
            false);
    if (rc != 0 && output.isEmpty())
        log(translated(QT_TRANSLATE_NOOP("EngineProbe", "探测返回非零（%1）：%2")).arg(rc).arg(command.name),
            true);
}

} // namespace

PlayerProbeResult runEngineProbe(const QString &playerBin, const QStringList &args, int timeoutMs,
                                 const ProbeLog &log)
{
    const ProbeCommand command = probeCommand(playerBin, args, timeoutMs);
    QProcess process;
    configure(process, command, args);
    process.start();
    if (!process.waitForStarted(startWaitMs))
        return {session_code::couldNotStart,
                u"[probe] cannot start %1: %2"_s.arg(command.program, process.errorString())};
    QByteArray output;
    if (!waitForEnd(process, command.timeoutMs, output))
        return timedOutResult(process, command, log);
    const int rc = process.exitStatus() == QProcess::CrashExit ? session_code::crashed : process.exitCode();
    logResult(rc, output, command, log);
    return {rc, QString::fromUtf8(output)};
}

PlayerProbeResult runInProcessProbe(kelp::EngineLibrary &library, const QString &enginePath,
                                    const QStringList &args, const ExchangeStage &exchangeStage)
{
    const StageLabel stage(exchangeStage, u"probe "_s + args.join(u' ').left(stageTextLimit));
    const kelp::EngineLibrary::ProbeEntry entry = library.probeEntry();
    if (entry == nullptr)
        return {session_code::refused, library.errorText()};
    std::vector<std::string> words{enginePath.isEmpty() ? "KelpPlayerEngine" : enginePath.toStdString()};
    for (const QString &arg : args)
        words.push_back(arg.toStdString());
    std::vector<char *> argv;
    for (std::string &word : words)
        argv.push_back(word.data());
    argv.push_back(nullptr);
    std::vector<char> buffer(libraryBufferBytes, '\0');
    int rc = session_code::refused;
    try {
        rc = entry(argv.data(), static_cast<int>(words.size()), buffer.data(), libraryBufferBytes);
    } catch (const std::exception &thrown) {
        return {session_code::refused, QString::fromUtf8(thrown.what())};
    } catch (...) {
        return {session_code::refused, u"the engine threw a non-std exception"_s};
    }
    // An answer that fills the buffer is cut there, whether or not the engine left room for its end.
    buffer.back() = '\0';
    return {rc, QString::fromUtf8(buffer.data())};
}
