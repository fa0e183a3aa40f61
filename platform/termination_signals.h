/// \file
/// Being asked to end by the system: a terminal's Ctrl+C, the end of the desktop session, `kill`.
#pragma once

#include <functional>

class QObject;

/// Calls act with the signal's number, from the event loop, when SIGTERM, SIGINT or SIGHUP comes; a second
/// one of the same kind ends the process at once, for a program that hangs. As long as the context lives,
/// which owns the watch; then the signals do what they did before. Signals that whoever started the process
/// has switched off stay off. Once at a time in a process; GUI thread.
void onTerminationSignal(QObject *context, std::function<void(int number)> act);

/// "SIGTERM" and the like; "another signal" for one that is not watched.
const char *terminationSignalName(int number);
