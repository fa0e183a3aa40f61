#include "platform/elf_symbols.h"

#include <algorithm>
#include <cstring>
#include <elf.h>
#include <string_view>

namespace {

using Bytes = std::span<const std::byte>;

constexpr std::uint64_t pageMask = ~std::uint64_t{0xFFF};
/// A file with more symbols than this is not one that a linker wrote.
constexpr std::uint64_t mostSymbols = 20'000'000;

/// The part of \p file that begins at \p offset; empty when it does not stand in the file whole.
Bytes part(Bytes file, std::uint64_t offset, std::uint64_t sizeBytes)
{
    if (offset > file.size() || sizeBytes > file.size() - offset)
        return {};
    return file.subspan(static_cast<std::size_t>(offset), static_cast<std::size_t>(sizeBytes));
}

/// Copies one record; places in a foreign file need not be aligned.
template<class Record>
std::optional<Record> record(Bytes file, std::uint64_t offset)
{
    const Bytes bytes = part(file, offset, sizeof(Record));
    if (bytes.empty())
        return std::nullopt;
    Record result;
    std::memcpy(&result, bytes.data(), sizeof result);
    return result;
}

std::optional<Elf64_Ehdr> headerOf(Bytes file)
{
    const std::optional<Elf64_Ehdr> header = record<Elf64_Ehdr>(file, 0);
    if (!header || std::memcmp(header->e_ident, ELFMAG, SELFMAG) != 0 ||
        header->e_ident[EI_CLASS] != ELFCLASS64 || header->e_ident[EI_DATA] != ELFDATA2LSB ||
        header->e_phentsize != sizeof(Elf64_Phdr) || header->e_shentsize != sizeof(Elf64_Shdr))
        return std::nullopt;
    return header;
}

/// What the first loaded segment calls its own first page: 0 for libraries, more for a program at a fixed
/// place.
std::optional<std::uint64_t> firstAddress(Bytes file, const Elf64_Ehdr &header)
{
    for (unsigned index = 0; index < header.e_phnum; ++index) {
        const auto segment = record<Elf64_Phdr>(file, header.e_phoff + index * sizeof(Elf64_Phdr));
        if (!segment)
            return std::nullopt;
        if (segment->p_type == PT_LOAD)
            return segment->p_vaddr & pageMask;
    }
    return std::nullopt;
}

std::optional<Elf64_Shdr> section(Bytes file, const Elf64_Ehdr &header, unsigned index)
{
    if (index >= header.e_shnum)
        return std::nullopt;
    return record<Elf64_Shdr>(file, header.e_shoff + index * sizeof(Elf64_Shdr));
}

std::optional<std::string> nameAt(Bytes names, std::uint32_t offset)
{
    if (offset >= names.size())
        return std::nullopt;
    const Bytes rest = names.subspan(offset).first(std::min(names.size() - offset, mostSymbolNameBytes));
    const auto end = std::find(rest.begin(), rest.end(), std::byte{0});
    if (end == rest.begin())
        return std::nullopt;
    return std::string(reinterpret_cast<const char *>(rest.data()),
                       static_cast<std::size_t>(end - rest.begin()));
}

std::optional<std::string> functionIn(Bytes symbols, Bytes names, std::uint64_t address)
{
    const std::uint64_t count = std::min<std::uint64_t>(symbols.size() / sizeof(Elf64_Sym), mostSymbols);
    for (std::uint64_t index = 0; index < count; ++index) {
        Elf64_Sym symbol;
        std::memcpy(&symbol, symbols.data() + index * sizeof symbol, sizeof symbol);
        const auto type = ELF64_ST_TYPE(symbol.st_info);
        if ((type != STT_FUNC && type != STT_GNU_IFUNC) || symbol.st_shndx == SHN_UNDEF)
            continue;
        if (address >= symbol.st_value && address - symbol.st_value < symbol.st_size)
            return nameAt(names, symbol.st_name);
    }
    return std::nullopt;
}

} // namespace

std::optional<std::string> functionInElf(Bytes file, std::uint64_t offset)
{
    const std::optional<Elf64_Ehdr> header = headerOf(file);
    const std::optional<std::uint64_t> first = header ? firstAddress(file, *header) : std::nullopt;
    if (!first)
        return std::nullopt;
    const std::uint64_t address = *first + offset;
    for (const std::uint32_t wanted : {std::uint32_t{SHT_SYMTAB}, std::uint32_t{SHT_DYNSYM}}) {
        for (unsigned index = 0; index < header->e_shnum; ++index) {
            const auto table = section(file, *header, index);
            if (!table || table->sh_type != wanted)
                continue;
            const auto strings = section(file, *header, table->sh_link);
            if (!strings)
                continue;
            if (auto name = functionIn(part(file, table->sh_offset, table->sh_size),
                                       part(file, strings->sh_offset, strings->sh_size), address))
                return name;
        }
    }
    return std::nullopt;
}
