#include "platform/elf_symbols.h"

#include <cstring>
#include <elf.h>
#include <gtest/gtest.h>
#include <vector>

namespace {

/// A file of one segment, one function "play" at [0x1100, 0x1120), and one import, loaded at 0x1000.
std::vector<std::byte> makeElf(std::uint32_t tableType = SHT_SYMTAB)
{
    constexpr char nameTable[] = "\0play\0import";
    struct File
    {
        Elf64_Ehdr header = {};
        Elf64_Phdr segment = {};
        Elf64_Shdr sections[3] = {};
        Elf64_Sym symbols[4] = {};
        char names[sizeof nameTable] = {};
    } file;
    std::memcpy(file.header.e_ident, ELFMAG, SELFMAG);
    file.header.e_ident[EI_CLASS] = ELFCLASS64;
    file.header.e_ident[EI_DATA] = ELFDATA2LSB;
    file.header.e_phoff = offsetof(File, segment);
    file.header.e_phentsize = sizeof(Elf64_Phdr);
    file.header.e_phnum = 1;
    file.header.e_shoff = offsetof(File, sections);
    file.header.e_shentsize = sizeof(Elf64_Shdr);
    file.header.e_shnum = 3;
    file.segment.p_type = PT_LOAD;
    file.segment.p_vaddr = 0x1010; // its page begins at 0x1000
    file.sections[1].sh_type = tableType;
    file.sections[1].sh_offset = offsetof(File, symbols);
    file.sections[1].sh_size = sizeof file.symbols;
    file.sections[1].sh_link = 2;
    file.sections[2].sh_type = SHT_STRTAB;
    file.sections[2].sh_offset = offsetof(File, names);
    file.sections[2].sh_size = sizeof nameTable;
    file.symbols[1] = {1, ELF64_ST_INFO(STB_LOCAL, STT_OBJECT), 0, 1, 0x1100, 0x20};
    file.symbols[2] = {6, ELF64_ST_INFO(STB_GLOBAL, STT_FUNC), 0, SHN_UNDEF, 0x1100, 0x20};
    file.symbols[3] = {1, ELF64_ST_INFO(STB_GLOBAL, STT_FUNC), 0, 1, 0x1100, 0x20};
    std::memcpy(file.names, nameTable, sizeof nameTable);
    std::vector<std::byte> bytes(sizeof file);
    std::memcpy(bytes.data(), &file, sizeof file);
    return bytes;
}

TEST(ElfSymbols, NameTheFunctionThatCoversAPlace)
{
    for (const std::uint32_t type : {std::uint32_t{SHT_SYMTAB}, std::uint32_t{SHT_DYNSYM}}) {
        const auto file = makeElf(type);
        EXPECT_EQ(functionInElf(file, 0x100), "play");
        EXPECT_EQ(functionInElf(file, 0x11f), "play");
    }
}

TEST(ElfSymbols, GiveNoNeighboursName)
{
    const auto file = makeElf();
    EXPECT_EQ(functionInElf(file, 0xff), std::nullopt);
    EXPECT_EQ(functionInElf(file, 0x120), std::nullopt);
}

TEST(ElfSymbols, RefuseOtherFiles)
{
    EXPECT_EQ(functionInElf({}, 0x100), std::nullopt);
    auto file = makeElf();
    file[EI_CLASS] = std::byte{ELFCLASS32};
    EXPECT_EQ(functionInElf(file, 0x100), std::nullopt);
    file = makeElf();
    file[0] = std::byte{'M'};
    EXPECT_EQ(functionInElf(file, 0x100), std::nullopt);
}

TEST(ElfSymbols, SurviveEveryCutAndEveryDamagedByte)
{
    const auto whole = makeElf();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::vector<std::byte> cut(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(size));
        const auto name = functionInElf(cut, 0x100);
        EXPECT_TRUE(!name || *name == "play" || *name == "pla" || *name == "pl" || *name == "p");
    }
    for (std::size_t at = 0; at < whole.size(); ++at) {
        auto damaged = whole;
        damaged[at] = std::byte{0xff};
        const auto name = functionInElf(damaged, 0x100);
        EXPECT_LE(name.value_or("").size(), mostSymbolNameBytes);
    }
}

} // namespace
