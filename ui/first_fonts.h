/// \file
/// The fonts of the window's first picture.
#pragma once

#include "platform/font_wishes.h"

/// Every family, weight and size that the window draws its first picture with, in the languages of the Latin,
/// Greek and Cyrillic scripts. A font that is missing here costs a little time, nothing else. Needs no
/// application object.
std::vector<FontWish> firstFonts();
