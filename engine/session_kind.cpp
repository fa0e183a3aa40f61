#include "engine/session_kind.h"

#include <QtGlobal>

namespace {
constexpr char variable[] = "KELP_GUI_INPROC";
}

SessionKindFacts sessionKindFacts(bool inprocSetting)
{
    return {qEnvironmentVariableIsSet(variable), qEnvironmentVariable(variable), inprocSetting};
}

bool factoryWantsInProcess(const SessionKindFacts &facts)
{
    if (facts.environmentValue.isEmpty())
        return facts.inprocSetting;
    return facts.environmentValue != QStringLiteral("0");
}

bool isInProcessPreferred(const SessionKindFacts &facts)
{
    if (!facts.environmentSet)
        return facts.inprocSetting;
    return facts.environmentValue.toInt() != 0;
}
