// The chain block collects whatever stands between its markers.
#include "engine/chain_block.h"
#include "engine/chain_text.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QString text =
        QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    ChainBlock block;
    for (const QString &line : text.split(u'\n')) {
        if (collectChainLine(block, line) && block.collecting)
            __builtin_trap();
        storeChainLabel(block, line);
        if (chainTextOf(line).text.isEmpty())
            __builtin_trap();
    }
    if (block.chainBuffer.size() > mostChainLines ||
        block.chainLabels.size() > static_cast<qsizetype>(chainLabelNames.size()))
        __builtin_trap();
    static_cast<void>(chainLabelsText(block.chainLabels));
    return 0;
}
