#include "ui/window_place.h"

#include "ui/area_plan.h"

#include <algorithm>

namespace {

/// As much of the title bar as a hand needs to take hold of it.
constexpr QSize leastHold(120, 24);

} // namespace

QRect centredPlace(const QSize &size, const QRect &screen)
{
    QRect place(QPoint(), size.boundedTo(screen.size()));
    place.moveCenter(screen.center());
    return place;
}

QRect reachablePlace(const QRect &wanted, const QList<QRect> &screens)
{
    const QRect titleBar(wanted.topLeft(), QSize(wanted.width(), areas::titleBar));
    const bool reachable = std::ranges::any_of(screens, [&](const QRect &screen) {
        const QRect seen = titleBar & screen;
        return seen.width() >= leastHold.width() && seen.height() >= leastHold.height();
    });
    if (reachable)
        return wanted;
    return centredPlace(wanted.size(), screens.first());
}
