#include "platform/module_list.h"

#include "platform/symbol_names.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <poll.h>
#include <string>

using namespace Qt::StringLiterals;

namespace {

constexpr const char *maps = "55000000-55001000 r--p 00000000 08:01 11    /opt/kelp/KelpPlayer\n"
                             "55001000-55009000 r-xp 00001000 08:01 11    /opt/kelp/KelpPlayer\n"
                             "55009000-5500a000 rw-p 00009000 08:01 11    /opt/kelp/KelpPlayer\n"
                             "5500a000-5500c000 rw-p 00000000 00:00 0 \n"
                             "5500c000-5502d000 rw-p 00000000 00:00 0     [heap]\n"
                             "7f000000-7f100000 r--p 00000000 08:01 12    /usr/share/fonts/a font.ttf\n"
                             "7f200000-7f201000 r--p 00000000 08:01 13    /usr/lib/libx.so.1\n"
                             "7f201000-7f202000 r-xp 00001000 08:01 13    /usr/lib/libx.so.1\n"
                             "7fff0000-7fff2000 r-xp 00000000 00:00 0     [vdso]\n";

TEST(ModuleList, JoinsThePiecesOfAFileAndLeavesDataOut)
{
    const auto modules = modulesFromMaps(maps, u"/opt/kelp/KelpPlayer"_s);
    ASSERT_EQ(modules.size(), 3u);
    EXPECT_EQ(modules[0].base, 0x55000000u);
    EXPECT_EQ(modules[0].end, 0x5500a000u);
    EXPECT_EQ(modules[0].name, u"KelpPlayer"_s);
    EXPECT_TRUE(modules[0].ownProgram);
    EXPECT_EQ(modules[1].name, u"libx.so.1"_s);
    EXPECT_EQ(modules[1].path, u"/usr/lib/libx.so.1"_s);
    EXPECT_FALSE(modules[1].ownProgram);
    EXPECT_EQ(modules[2].name, u"[vdso]"_s);
}

TEST(ModuleList, FindsTheModuleAroundAnAddress)
{
    const auto modules = modulesFromMaps(maps, {});
    EXPECT_EQ(moduleAt(modules, 0x54ffffff), nullptr);
    ASSERT_NE(moduleAt(modules, 0x55000000), nullptr);
    EXPECT_EQ(moduleAt(modules, 0x55009fff)->name, u"KelpPlayer"_s);
    EXPECT_EQ(moduleAt(modules, 0x5500a000), nullptr);
    EXPECT_EQ(moduleAt(modules, 0x7f201234)->name, u"libx.so.1"_s);
    EXPECT_EQ(moduleAt(modules, ~std::uintptr_t{0}), nullptr);
    EXPECT_EQ(moduleAt({}, 1), nullptr);
}

TEST(ModuleList, DamagedLinesAreSkipped)
{
    EXPECT_TRUE(modulesFromMaps("", {}).empty());
    EXPECT_TRUE(modulesFromMaps("\n\n-\nzz-yy r-xp 0 0 0 /a\n", {}).empty());
    EXPECT_TRUE(modulesFromMaps("2000-1000 r-xp 0 0 0 /backwards\n", {}).empty());
    EXPECT_TRUE(modulesFromMaps("1000-2000 r\n1000-2000", {}).empty());
    const auto modules = modulesFromMaps("nonsense\n1000-2000 r-xp 0 00:00 0 /whole", {});
    ASSERT_EQ(modules.size(), 1u);
    EXPECT_EQ(modules[0].name, u"whole"_s);
}

TEST(ModuleList, KeepsItsLimits)
{
    std::string many;
    for (int index = 0; index < mostModules + 50; ++index) {
        const std::string base = QString::number(0x10000 + index * 0x1000, 16).toStdString();
        const std::string end = QString::number(0x10000 + (index + 1) * 0x1000, 16).toStdString();
        many += base + "-" + end + " r-xp 0 0 0 /lib/" + std::to_string(index) + "\n";
    }
    EXPECT_EQ(modulesFromMaps(many, {}).size(), static_cast<std::size_t>(mostModules));
    const auto longName = modulesFromMaps("1000-2000 r-xp 0 0 0 /lib/" + std::string(1000, 'x'), {});
    ASSERT_EQ(longName.size(), 1u);
    EXPECT_EQ(longName[0].name.size(), mostModuleNameChars);
}

TEST(ModuleList, OfThisProcessHasTheProgramAndTheCLibrary)
{
    const auto modules = loadedModules();
    EXPECT_EQ(std::count_if(modules.begin(), modules.end(), [](const auto &m) { return m.ownProgram; }), 1);
    const auto *module = moduleAt(modules, reinterpret_cast<std::uintptr_t>(&loadedModules));
    ASSERT_NE(module, nullptr);
    EXPECT_TRUE(module->ownProgram);
    EXPECT_EQ(module->name, u"platform_diagnostics_test"_s);
    EXPECT_TRUE(std::is_sorted(modules.begin(), modules.end(),
                               [](const auto &a, const auto &b) { return a.base < b.base; }));
}

TEST(SymbolNames, KnowOwnFunctionsAndThoseOfStrippedLibraries)
{
    const auto modules = loadedModules();
    const auto own = reinterpret_cast<std::uintptr_t>(&loadedModules);
    ASSERT_NE(moduleAt(modules, own), nullptr);
    EXPECT_TRUE(functionNameAt(*moduleAt(modules, own), own).startsWith(u"loadedModules("_s));
    const auto foreign = reinterpret_cast<std::uintptr_t>(&qVersion);
    ASSERT_NE(moduleAt(modules, foreign), nullptr);
    EXPECT_FALSE(moduleAt(modules, foreign)->ownProgram);
    EXPECT_EQ(functionNameAt(*moduleAt(modules, foreign), foreign), u"qVersion"_s);
}

TEST(SymbolNames, AreEmptyWhereNothingIsKnown)
{
    LoadedModule module;
    module.base = 0x1000;
    module.end = 0x2000;
    module.path = u"/nowhere/at/all"_s;
    EXPECT_EQ(functionNameAt(module, 0x1500), QString());
    EXPECT_EQ(functionNameAt(module, 0x3000), QString());
}

} // namespace
