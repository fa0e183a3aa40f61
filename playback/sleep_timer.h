/// \file
/// Falling asleep with music: after so many minutes it fades out and stops.
#pragma once

#include <QString>

class QTimer;

inline constexpr int sleepFadeSteps = 20;
/// A day; more is no sleep, and a timer's milliseconds must not overflow.
inline constexpr int longestSleepMinutes = 24 * 60;

struct SleepState
{
    int minutes = 0;                  ///< 0: off
    QTimer *sleepTimer = nullptr;     ///< single shot, child of the window; null before its first use
    QTimer *sleepFadeTimer = nullptr; ///< likewise, repeating
    int fadeStep = 0;                 ///< 0 while no fade is under way, else 1 … sleepFadeSteps
    int volumeBefore = -1;            ///< of the slider, in percent; -1 while no fade is under way
};

/// The slider at a step of the fade that began at volumeBefore.
/// \param step 1 … sleepFadeSteps - 1
int sleepFadeVolume(int volumeBefore, int step);

/// What the label shows, translated; 0 for off.
QString sleepTimerText(int minutes);
QString sleepFadeBeginsText();
QString sleepFadeEndedText();
