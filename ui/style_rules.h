/// \file
/// Rules of the style sheet that belong to one area each. Written in the dark look's neutrals, as the sheet
/// is.
#pragma once

#include <QLatin1StringView>

/// The window's areas: what they add to the common rules.
extern const QLatin1StringView areaRules;
/// The signal chain's panel, its report and the self-check.
extern const QLatin1StringView chainRules;
