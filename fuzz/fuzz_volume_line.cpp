// The lamp of the effective bits takes its number from free text.
#include "engine/effective_bits_table.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const std::optional<int> deviceBits = deviceBitsOf(text);
    if (deviceBits && *deviceBits <= 0)
        __builtin_trap();
    const std::optional<EffectiveBits> result = effectiveBitsOf(text, deviceBits.value_or(0));
    if (result && (result->text.isEmpty() || result->bits.value_or(0) < -1))
        __builtin_trap();
    return 0;
}
