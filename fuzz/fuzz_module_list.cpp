// Reads a list of mappings in which paths may hold anything.
#include "platform/module_list.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto modules = modulesFromMaps(std::string_view(reinterpret_cast<const char *>(data), size),
                                         QStringLiteral("/bin/x"));
    if (modules.size() > mostModules)
        __builtin_trap();
    for (const LoadedModule &module : modules)
        if (module.end <= module.base || module.name.size() > mostModuleNameChars)
            __builtin_trap();
    static_cast<void>(moduleAt(modules, 0x1000));
    return 0;
}
