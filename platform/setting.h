/// \file
/// One persistent choice: its key, what it is when nothing is stored, and what it is for.
#pragma once

#include <QByteArray>
#include <QLatin1StringView>
#include <QString>
#include <QStringList>
#include <optional>
#include <type_traits>

enum class SettingType
{
    Bool,
    Int,
    Double,
    Text,
    List,
    Bytes,
};

/// What a default of a setting of this type is written as: texts as literals; lists and bytes begin empty.
template<class Value>
using SettingDefault =
    std::conditional_t<std::is_same_v<Value, QString>, QLatin1StringView,
                       std::conditional_t<std::is_arithmetic_v<Value>, Value, std::nullptr_t>>;

/// A setting of type \p Value: bool, int, double, QString, QStringList or QByteArray.
template<class Value>
struct Setting
{
    QLatin1StringView key;
    /// Empty where the widget's own state is the default; reading then gives a value only when one is stored.
    std::optional<SettingDefault<Value>> fallback;
    QLatin1StringView purpose;
};

/// Stands for "the widget's own state" in the table.
inline constexpr std::nullopt_t ofWidget = std::nullopt;

/// The same without its type, for looking over all settings.
struct SettingRow
{
    QLatin1StringView key;
    SettingType type;
    bool hasFallback;
    QLatin1StringView purpose;
};

template<class Value>
constexpr SettingType settingType()
{
    if constexpr (std::is_same_v<Value, bool>)
        return SettingType::Bool;
    else if constexpr (std::is_same_v<Value, int>)
        return SettingType::Int;
    else if constexpr (std::is_same_v<Value, double>)
        return SettingType::Double;
    else if constexpr (std::is_same_v<Value, QString>)
        return SettingType::Text;
    else if constexpr (std::is_same_v<Value, QStringList>)
        return SettingType::List;
    else
        return SettingType::Bytes;
}

template<class Value>
constexpr SettingRow rowOf(const Setting<Value> &setting)
{
    return {setting.key, settingType<Value>(), setting.fallback.has_value(), setting.purpose};
}
