#include "engine/effective_bits_table.h"

#include "engine/line_words.h"

#include <QCoreApplication>
#include <array>

using namespace Qt::StringLiterals;

namespace {

enum class Figure
{
    DeviceBits,
    None
};
struct Row
{
    QLatin1StringView words;
    BitsMode mode;
    Figure figure;
    const char *source;
};

constexpr Row unityRow{"unity"_L1, BitsMode::Transparent, Figure::DeviceBits,
                       QT_TRANSLATE_NOOP("EffectiveBits", "有效位：单位增益（样本原样通过）")};

/// Tried after "unity" and "effective bits", top to bottom.
constexpr std::array otherRows = {
    Row{"used up"_L1, BitsMode::UsedUp, Figure::None,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：已耗尽（衰减过深）")},
    Row{"headroom"_L1, BitsMode::Depth, Figure::DeviceBits,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：无损失，但增益会推高峰值（有削波风险）")},
    Row{"applied on the DEVICE"_L1, BitsMode::Transparent, Figure::DeviceBits,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：不受影响（设备/端点音量，样本未缩放）")},
    Row{"NOT applied on a DoP stream"_L1, BitsMode::Transparent, Figure::DeviceBits,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：不受影响（DoP 流不做音量处理）")},
    Row{"DSD direct"_L1, BitsMode::Unknown, Figure::None,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：见日志（DSD 直通，使用设备混音器）")},
    Row{"SOFTWARE gain"_L1, BitsMode::Unknown, Figure::DeviceBits,
        QT_TRANSLATE_NOOP("EffectiveBits", "有效位：由软件增益决定（见下一行）")},
};

QString text(const char *source)
{
    return QCoreApplication::translate("EffectiveBits", source);
}

/// The first number above 0 that stands right behind the words.
std::optional<int> numberBehind(QStringView line, QLatin1StringView words)
{
    for (qsizetype at = line.indexOf(words); at >= 0; at = line.indexOf(words, at + words.size())) {
        const std::optional<int> number = leadingDigits(line.sliced(at + words.size()));
        if (number && *number > 0)
            return number;
    }
    return std::nullopt;
}

EffectiveBits resultOf(const Row &row, int deviceBits)
{
    const std::optional<int> bits = row.figure == Figure::None ? std::nullopt : std::optional(deviceBits);
    return {row.mode, bits, text(row.source)};
}

EffectiveBits depthResult(QStringView line)
{
    if (const std::optional<int> bits = numberBehind(line, "about "_L1))
        return {BitsMode::Depth, *bits,
                text(QT_TRANSLATE_NOOP("EffectiveBits", "有效位：约 %1 位（软件衰减之后）")).arg(*bits)};
    return {BitsMode::Depth, -1, text(QT_TRANSLATE_NOOP("EffectiveBits", "有效位：见日志"))};
}

} // namespace

std::optional<int> deviceBitsOf(QStringView line)
{
    return numberBehind(line, "on a "_L1);
}

std::optional<EffectiveBits> effectiveBitsOf(QStringView line, int deviceBits)
{
    if (line.contains(unityRow.words))
        return resultOf(unityRow, deviceBits);
    if (line.contains("effective bits"_L1))
        return depthResult(line);
    for (const Row &row : otherRows) {
        if (line.contains(row.words))
            return resultOf(row, deviceBits);
    }
    return std::nullopt;
}
