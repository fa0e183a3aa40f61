/// \file
/// Every wait of starting, stopping and replacing a session, in one table.
#pragma once

/// Milliseconds. The program takes the defaults; tests shorten them. Waits are waits of the GUI thread but
/// for those of a stop, which are timers.
struct TransportTimes
{
    // startPlayback, an old session still runs: wait, terminate, wait, give up with a message.
    int leftover = 2000;
    int leftoverTerminate = 1000;
    // playCurrent, device or mode changed: wait, kill, wait.
    int rebuild = 10000;
    int rebuildKill = 1500;
    // ensureSession, a previous session inside this process: wait, log and go on.
    int replace = 2000;
    // stopPlayback, timers: message and terminate, kill.
    int stop = 5000;
    int stopKill = 1500;
    // killProc: wait, terminate, wait, kill, wait.
    int close = 5000;
    int closeTerminate = 1000;
    int closeKill = 2000;
    // A refused exclusive device: stop, wait, give up with a message. Then ends are ignored for a while.
    int fallbackStop = 1500;
    int fallbackWait = 1000;
    int ignoreAfterFallback = 2000;
    // Silence after a start is reported.
    int noAudio = 5000;
    // The sleep timer.
    int sleepMinute = 60000;
    int sleepFadeStep = 500;
};
