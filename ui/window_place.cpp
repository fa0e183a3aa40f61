#include "ui/window_place.h"

#include "ui/area_plan.h"

#include <algorithm>

namespace {

/// As much of the title bar as a hand needs to take hold of it.
constexpr QSize leastHold(120, 24);

} // namespace

QRect reachablePlace(const QRect &wanted, const QList<QRect> &screens)
{
    const QRect titleBar(wanted.topLeft(), QSize(wanted.width(), areas::titleBar));
    const bool reachable = std::ranges::any_of(screens, [&](const QRect &screen) {
        const QRect seen = titleBar & screen;
        return seen.width() >= leastHold.width() && seen.height() >= leastHold.height();
    });
    if (reachable)
        return wanted;
    const QRect &primary = screens.first();
    QRect place(QPoint(), wanted.size().boundedTo(primary.size()));
    place.moveCenter(primary.center());
    return place;
}
