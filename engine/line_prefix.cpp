#include "engine/line_prefix.h"

using namespace Qt::StringLiterals;

QStringView stripPlayerPrefix(QStringView text)
{
    constexpr auto prefix = "[player] "_L1;
    return text.startsWith(prefix) ? text.sliced(prefix.size()) : text;
}

std::optional<QStringView> embeddedRest(QStringView text, QLatin1StringView prefix)
{
    const qsizetype at = text.indexOf(prefix);
    if (at < 0)
        return std::nullopt;
    if (at > 0 && text[at - 1] != u' ' && text[at - 1] != u']')
        return std::nullopt;
    return text.sliced(at + prefix.size());
}
