/// \file
/// What an output line sets going, for people: one line of plain English an effect.
#pragma once

#include "engine/line_effects.h"

#include <QString>

/// For transcripts and tests; texts that the effect holds stand in it as they are.
QString describe(const LineEffect &effect);
