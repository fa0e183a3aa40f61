#include "engine/in_proc_session.h"

#include "engine/engine_library.h"
#include "engine/stage_label.h"

#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

/// A piece may hold several lines; each is delivered with its newline, what has none as it is.
void deliverLines(const PlayerSession::LineSink &sink, std::string_view piece)
{
    while (!piece.empty()) {
        const std::size_t newline = piece.find('\n');
        const std::size_t length = newline == std::string_view::npos ? piece.size() : newline + 1;
        sink(QString::fromUtf8(piece.data(), static_cast<qsizetype>(length)), false);
        piece.remove_prefix(length);
    }
}

std::vector<std::string> byteStrings(const QString &program, const QStringList &args)
{
    std::vector<std::string> bytes{program.toStdString()};
    for (const QString &arg : args)
        bytes.push_back(arg.toStdString());
    return bytes;
}

} // namespace

InProcSession::InProcSession(kelp::EngineLibrary &library, ExchangeStage exchangeStage)
    : m_library(library)
    , m_exchangeStage(std::move(exchangeStage))
{
}

InProcSession::~InProcSession() = default;

int InProcSession::start(const QString &program, const QStringList &args)
{
    if (isRunning())
        return session_code::alreadyRunning;
    if (!m_runner) {
        const kelp::EngineLibrary::MainEntry entry = m_library.mainEntry();
        if (entry == nullptr) {
            m_libraryError = m_library.errorText();
            return session_code::refused;
        }
        m_runner = std::make_unique<kelp::InProcRunner>(entry);
        m_libraryError.clear();
    }
    // The sink is copied: the runner's threads must not look into this object.
    kelp::InProcRunner::LineSink sink;
    if (lineSink)
        sink = [to = lineSink](std::string_view piece) { deliverLines(to, piece); };
    const int code = m_runner->start(byteStrings(program, args), std::move(sink));
    m_started = code == session_code::ok;
    m_doneReported = false;
    return code;
}

bool InProcSession::isRunning() const
{
    return m_runner && m_runner->running();
}

int InProcSession::writeLine(const QString &line, bool &flushed)
{
    flushed = true;
    if (!isRunning())
        return session_code::refused;
    const StageLabel stage(m_exchangeStage, u"sendCmd("_s + line.section(u' ', 0, 0).left(40) + u')');
    const std::string bytes = line.toStdString();
    return m_runner->sendLine(bytes) ? static_cast<int>(bytes.size()) + 1 : 0;
}

QString InProcSession::lastError() const
{
    return m_runner ? QString::fromStdString(m_runner->lastError()) : m_libraryError;
}

int InProcSession::stop(int timeoutMs)
{
    return m_runner ? m_runner->stop(timeoutMs) : session_code::refused;
}

bool InProcSession::waitFinished(int timeoutMs)
{
    return !m_runner || m_runner->waitExit(timeoutMs) != session_code::timedOut;
}

void InProcSession::poll()
{
    if (!m_started || m_doneReported || isRunning())
        return;
    m_doneReported = true;
    const int code = m_runner->waitExit(pollWaitMs);
    if (const DoneSink done = doneSink)
        done(code == session_code::timedOut ? 0 : code, false);
}
