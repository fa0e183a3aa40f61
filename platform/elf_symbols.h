/// \file
/// The names of functions in a program or library file (ELF, System V ABI, 64 bit).
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>

/// The longest name that is looked at; longer ones are cut.
constexpr std::size_t mostSymbolNameBytes = 4096;

/// The function that covers a place of a loaded file, as it stands in the file's tables (mangled), or
/// nothing: a place that no function covers gets no neighbour's name. Reads the whole table of symbols where
/// there is one and the exported names in a stripped file. Damaged files give nothing. \param file the bytes
/// of the whole file; foreign bytes, nothing in them is trusted \param offset bytes from where the file is
/// loaded
std::optional<std::string> functionInElf(std::span<const std::byte> file, std::uint64_t offset);
