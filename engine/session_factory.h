/// \file
/// Makes the session of the kind that is asked for.
#pragma once

#include "engine/player_session.h"
#include "engine/session_kind.h"

#include <memory>

class QObject;
namespace kelp {
class EngineLibrary;
}

struct SessionOptions
{
    SessionKindFacts kind; ///< see sessionKindFacts()
    bool forceChildProcess = false;
    ExchangeStage exchangeStage;            ///< may be empty
    kelp::EngineLibrary *library = nullptr; ///< null: the program's own; else it outlives the session
};

/// \param parent owns a child process's object
std::unique_ptr<PlayerSession> makeSession(QObject *parent, const SessionOptions &options);
