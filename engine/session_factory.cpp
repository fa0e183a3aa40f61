#include "engine/session_factory.h"

#include "engine/engine_library.h"
#include "engine/in_proc_session.h"
#include "engine/proc_session.h"

std::unique_ptr<PlayerSession> makeSession(QObject *parent, const SessionOptions &options)
{
    if (options.forceChildProcess || !factoryWantsInProcess(options.kind))
        return std::make_unique<ProcSession>(parent);
    kelp::EngineLibrary &library =
        options.library != nullptr ? *options.library : kelp::EngineLibrary::ofProgram();
    return std::make_unique<InProcSession>(library, options.exchangeStage);
}
