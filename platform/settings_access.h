/// \file
/// Reading and writing settings, over the user's file or over what a test holds.
#pragma once

#include "platform/setting.h"

#include <QVariant>

/// A store of values by key. Implementations report nothing: what cannot be read is absent, and what cannot
/// be written is lost, since the program must run from a read-only home.
class SettingsAccess
{
public:
    SettingsAccess() = default;
    virtual ~SettingsAccess() = default;
    SettingsAccess(const SettingsAccess &) = delete;
    SettingsAccess &operator=(const SettingsAccess &) = delete;

    /// An invalid QVariant when absent. The value may be a text whatever was written: an INI file knows no
    /// types.
    virtual QVariant value(QLatin1StringView key) const = 0;
    virtual void setValue(QLatin1StringView key, const QVariant &value) = 0;
    virtual void remove(QLatin1StringView key) = 0;
};

namespace settings_detail {
/// The value as the type asked for, or empty where the stored text has no such form.
std::optional<bool> toBool(const QVariant &value);
std::optional<int> toInt(const QVariant &value);
std::optional<double> toDouble(const QVariant &value); ///< finite
QString toText(const QVariant &value);
} // namespace settings_detail

/// The stored value, or empty when there is none or it has not the form of its type.
template<class Value>
std::optional<Value> storedSetting(const SettingsAccess &store, const Setting<Value> &setting)
{
    const QVariant value = store.value(setting.key);
    if (!value.isValid())
        return std::nullopt;
    if constexpr (std::is_same_v<Value, bool>)
        return settings_detail::toBool(value);
    else if constexpr (std::is_same_v<Value, int>)
        return settings_detail::toInt(value);
    else if constexpr (std::is_same_v<Value, double>)
        return settings_detail::toDouble(value);
    else if constexpr (std::is_same_v<Value, QString>)
        return settings_detail::toText(value);
    else if constexpr (std::is_same_v<Value, QStringList>)
        return value.toStringList();
    else
        return value.toByteArray();
}

/// The stored value, else the default of the table, else an empty value.
template<class Value>
Value readSetting(const SettingsAccess &store, const Setting<Value> &setting)
{
    if (std::optional<Value> value = storedSetting(store, setting))
        return *std::move(value);
    if constexpr (std::is_same_v<Value, QString> || std::is_arithmetic_v<Value>)
        if (setting.fallback)
            return Value(*setting.fallback);
    return Value();
}

template<class Value>
void writeSetting(SettingsAccess &store, const Setting<Value> &setting,
                  const std::type_identity_t<Value> &value)
{
    store.setValue(setting.key, QVariant::fromValue(value));
}
