/// \file
/// The name of the function around a code address of this process.
#pragma once

#include "platform/module_list.h"

#include <QString>

/// The readable name of the function around \p address, or empty where the file of its module knows none.
/// Reads the module's file and asks nothing of the dynamic linker, so it never waits for a lock that a frozen
/// thread holds. Any thread; takes milliseconds.
/// \param module the module around \p address
QString functionNameAt(const LoadedModule &module, std::uintptr_t address);
