/// \file
/// What stored numbers mean when they are out of range or of a former form.
#pragma once

#include <optional>

constexpr int narrowestSidePx = 200;
constexpr int widestSidePx = 420;
constexpr int usualSidePx = 240;
constexpr int strongestDenoiseTier = 3;

/// The width of the side panel for a stored one: below 1 means the usual width, else it is clamped.
int sideWidthFromStored(int storedPx);
/// The width of the side panel for one that the user set.
int sideWidthFromUser(int wantedPx);

int clampedDenoiseTier(int stored);
/// Keeping harmonics is a part of denoising, so it is off while the tier is 0.
bool harmonicsKept(int denoiseTier, bool stored);

struct PlayAxes
{
    int order = 0;  ///< 0 sequential, 1 random
    int repeat = 0; ///< 0 none, 1 list, 2 track
};

struct PlayOrderFacts
{
    int playOrder = -1; ///< the former single key
    bool orderStored = false;
    bool repeatStored = false;
};

/// The axes that a former single key stands for: 0 sequential, 1 random, 2 sequential with the list repeated,
/// 3 sequential with the track repeated. Empty for any other value, and when one of the axes is stored
/// already.
std::optional<PlayAxes> migratedPlayOrder(const PlayOrderFacts &facts);
