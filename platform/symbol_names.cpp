#include "platform/symbol_names.h"

#include "platform/elf_symbols.h"

#include <QFile>
#include <cstdlib>
#include <cxxabi.h>

namespace {

QString readable(const std::string &name)
{
    int status = 0;
    char *plain = abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status);
    const QString result = QString::fromUtf8(plain != nullptr && status == 0 ? plain : name.c_str());
    std::free(plain);
    return result;
}

} // namespace

QString functionNameAt(const LoadedModule &module, std::uintptr_t address)
{
    if (address < module.base || address >= module.end)
        return {};
    QFile file(module.path);
    if (!file.open(QIODevice::ReadOnly) || file.size() <= 0)
        return {};
    const uchar *bytes = file.map(0, file.size());
    if (bytes == nullptr)
        return {};
    const std::span<const std::byte> whole(reinterpret_cast<const std::byte *>(bytes),
                                           static_cast<std::size_t>(file.size()));
    const auto name = functionInElf(whole, address - module.base);
    return name ? readable(*name) : QString();
}
