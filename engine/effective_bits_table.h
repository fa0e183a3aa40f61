/// \file
/// How many bits of the source reach the converter, as the engine's volume line tells.
#pragma once

#include <QString>
#include <QStringView>
#include <optional>

/// What the lamp beside the bits shows.
enum class BitsMode
{
    Unknown = 0,     ///< unknown, or the source's own depth
    Transparent = 1, ///< samples are not scaled
    Depth = 2,       ///< scaled, and this many bits are left
    UsedUp = 3       ///< hardly any are
};

struct EffectiveBits
{
    BitsMode mode = BitsMode::Unknown;
    /// None where the row has no figure: the lamp's number is then unknown, which it shows for any value
    /// below 1, such as the -1 of a line that names the effective bits without a number.
    std::optional<int> bits;
    QString text; ///< translated

    bool operator==(const EffectiveBits &) const = default;
};

/// The depth that the line gives the device by "on a 24 bit …", when it is above 0.
std::optional<int> deviceBitsOf(QStringView line);

/// None when the line says nothing about the bits.
/// \param deviceBits the device's depth; 0 when no line has told it
std::optional<EffectiveBits> effectiveBitsOf(QStringView line, int deviceBits);
