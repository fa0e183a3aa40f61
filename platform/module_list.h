/// \file
/// The program and the libraries that are loaded into it, and where they stand in memory.
#pragma once

#include <QString>
#include <cstdint>
#include <string_view>
#include <vector>

/// One file with code that is mapped into this process.
struct LoadedModule
{
    std::uintptr_t base = 0; ///< the first byte
    std::uintptr_t end = 0;  ///< one past the last byte
    QString name;            ///< without folders, at most mostModuleNameChars characters
    QString path;            ///< where the file stands, whole
    bool ownProgram = false; ///< the program itself, not a library
};

constexpr int mostModules = 512;
constexpr int mostModuleNameChars = 260;

/// The modules of this process, by rising address, at most mostModules.
/// Asks the kernel and not the dynamic linker, whose lock a thread frozen in loading a library would hold.
std::vector<LoadedModule> loadedModules();

/// The modules in a text of the form of /proc/self/maps (proc(5)). Files without a mapping that can be
/// executed are data, and left out; lines of another form are skipped.
/// \param ownPath the path of the program itself
std::vector<LoadedModule> modulesFromMaps(std::string_view maps, const QString &ownPath);

/// The module around \p address, or nullptr. \param modules by rising address
const LoadedModule *moduleAt(const std::vector<LoadedModule> &modules, std::uintptr_t address);
