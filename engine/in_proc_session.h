/// \file
/// The engine's library on a thread of this process.
#pragma once

#include "engine/in_proc_runner.h"
#include "engine/player_session.h"

#include <memory>

namespace kelp {
class EngineLibrary;
}

class InProcSession final : public PlayerSession
{
public:
    /// How long poll() grants the runner to wind down once the entry has returned.
    static constexpr int pollWaitMs = 1000;

    /// \param library  loaded at the first start; outlives the session
    /// \param exchangeStage  may be empty
    InProcSession(kelp::EngineLibrary &library, ExchangeStage exchangeStage);
    ~InProcSession() override;

    int start(const QString &program, const QStringList &args) override;
    bool isRunning() const override;
    int writeLine(const QString &line, bool &flushed) override;
    bool isQueuedWrite() const override { return true; }
    QString lastError() const override;
    int stop(int timeoutMs) override;
    bool waitFinished(int timeoutMs) override;
    void terminate() override {}
    void kill() override {}
    bool canBeKilled() const override { return false; }
    bool isInProcess() const override { return true; }
    void close() override {}
    void poll() override;

private:
    kelp::EngineLibrary &m_library;
    ExchangeStage m_exchangeStage;
    std::unique_ptr<kelp::InProcRunner> m_runner; ///< exists from the first start whose library was found
    QString m_libraryError;
    bool m_started = false;
    bool m_doneReported = false;
};
