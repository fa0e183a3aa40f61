#include "app/settings_rules.h"

#include <algorithm>
#include <array>

int sideWidthFromStored(int storedPx)
{
    return storedPx < 1 ? usualSidePx : sideWidthFromUser(storedPx);
}

int sideWidthFromUser(int wantedPx)
{
    return std::clamp(wantedPx, narrowestSidePx, widestSidePx);
}

int clampedDenoiseTier(int stored)
{
    return std::clamp(stored, 0, strongestDenoiseTier);
}

bool harmonicsKept(int denoiseTier, bool stored)
{
    return denoiseTier >= 1 && stored;
}

std::optional<PlayAxes> migratedPlayOrder(const PlayOrderFacts &facts)
{
    constexpr std::array<PlayAxes, 4> axes{PlayAxes{0, 0}, PlayAxes{1, 0}, PlayAxes{0, 1}, PlayAxes{0, 2}};
    if (facts.orderStored || facts.repeatStored || facts.playOrder < 0 ||
        facts.playOrder >= static_cast<int>(axes.size()))
        return std::nullopt;
    return axes[static_cast<std::size_t>(facts.playOrder)];
}
