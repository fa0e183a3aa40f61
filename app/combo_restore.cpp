#include "app/combo_restore.h"

#include <algorithm>

namespace {

QString withoutBlanks(const QString &text)
{
    return text.simplified().remove(u' ');
}

} // namespace

int findComboItem(const QList<ComboItem> &items, const QString &stored)
{
    const QString wanted = stored.trimmed();
    if (wanted.isEmpty())
        return -1;
    const auto firstIndex = [&](auto matches) {
        const auto found = std::ranges::find_if(items, matches);
        return found == items.end() ? -1 : static_cast<int>(std::distance(items.begin(), found));
    };
    if (const int index = firstIndex([&](const ComboItem &item) { return item.data == wanted; }); index >= 0)
        return index;
    const QString bare = withoutBlanks(wanted);
    if (const int index = firstIndex([&](const ComboItem &item) { return withoutBlanks(item.text) == bare; });
        index >= 0)
        return index;
    const QString word = wanted.simplified().section(u' ', 0, 0);
    return firstIndex([&](const ComboItem &item) { return item.text.trimmed().startsWith(word); });
}
