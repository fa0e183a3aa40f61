/// \file
/// How fast a track plays; its pitch stays.
#pragma once

#include <QString>

inline constexpr double slowestSpeed = 0.5;
inline constexpr double fastestSpeed = 3.;

/// The nearest ratio that can be played; what is no number plays as it was recorded.
double clampedSpeed(double ratio);
QString speedLine(double ratio);
/// The log sentence, translated.
/// \param playing the running session was told
QString speedText(double ratio, bool playing);
