/// \file
/// Positions as listeners read them.
#pragma once

#include <QString>

/// "3:07"; minutes are not folded into hours. Below 0 counts as 0.
QString minutesText(double sec);
/// "1:05 / 4:20", without the total when that is at most half a second; at another speed than 1 the ratio
/// follows.
QString positionText(double positionSec, double totalSec, double speedRatio);
/// The ratio with one decimal when that represents it, else two.
QString speedText(double ratio);
