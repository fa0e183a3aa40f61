/// \file
/// Which kind of session: inside this process, or as a child process.
#pragma once

#include <QString>

/// What the two questions below are asked over.
struct SessionKindFacts
{
    bool environmentSet = false; ///< KELP_GUI_INPROC exists, be it empty
    QString environmentValue;
    bool inprocSetting = true; ///< the setting engine/inproc
};

/// The facts of this process. \param inprocSetting the stored value of engine/inproc (default true)
SessionKindFacts sessionKindFacts(bool inprocSetting);

/// The factory's rule: a value that is not empty decides, "0" for a child process, all others for in-process.
bool factoryWantsInProcess(const SessionKindFacts &facts);

/// The rule for asking before a session exists: a variable that is set decides by its integer value.
/// The two rules differ on purpose ("abc" is in-process above and a child process here): scripts rely on
/// either, and only numbers agree.
bool isInProcessPreferred(const SessionKindFacts &facts);
