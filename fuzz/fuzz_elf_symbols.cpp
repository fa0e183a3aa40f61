// Looks for functions in a file that calls itself a program.
#include "platform/elf_symbols.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::span<const std::byte> file(reinterpret_cast<const std::byte *>(data), size);
    for (const std::uint64_t offset :
         {std::uint64_t{0}, std::uint64_t{0x100}, std::uint64_t{0x1000}, ~std::uint64_t{0}})
        if (const auto name = functionInElf(file, offset); name && name->size() > mostSymbolNameBytes)
            __builtin_trap();
    return 0;
}
