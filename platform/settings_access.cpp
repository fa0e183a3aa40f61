#include "platform/settings_access.h"

#include <cmath>
#include <utility>

using namespace Qt::StringLiterals;

namespace settings_detail {

std::optional<bool> toBool(const QVariant &value)
{
    if (value.typeId() == QMetaType::Bool)
        return value.toBool();
    const QString text = value.toString().trimmed().toLower();
    if (text == "true"_L1 || text == "1"_L1)
        return true;
    if (text == "false"_L1 || text == "0"_L1)
        return false;
    return std::nullopt;
}

std::optional<int> toInt(const QVariant &value)
{
    // Not QVariant::toInt: it cuts a number that is too large and calls that a success.
    bool fits = false;
    const qlonglong number = value.toLongLong(&fits);
    return fits && std::in_range<int>(number) ? std::optional(static_cast<int>(number)) : std::nullopt;
}

std::optional<double> toDouble(const QVariant &value)
{
    bool fits = false;
    const double number = value.toDouble(&fits);
    return fits && std::isfinite(number) ? std::optional(number) : std::nullopt;
}

QString toText(const QVariant &value)
{
    // A text with a comma that somebody wrote into the file without quotes is read as a list.
    return value.typeId() == QMetaType::QStringList ? value.toStringList().join(", "_L1) : value.toString();
}

} // namespace settings_detail
