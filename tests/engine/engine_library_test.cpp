#include "engine/engine_library.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <thread>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

TEST(EngineLibrary, LooksBesideTheProgramThenInTheInstalledPlaces)
{
    EXPECT_EQ(kelp::EngineLibrary::candidatesFor(u"/opt/kelp/bin"_s),
              (QStringList{u"/opt/kelp/bin/libkelp_player_core.so"_s,
                           u"/opt/kelp/lib/kelp-player/libkelp_player_core.so"_s,
                           u"/opt/kelp/lib/libkelp_player_core.so"_s}));
}

TEST(EngineLibrary, FindsBothEntriesInTheFirstUsableCandidate)
{
    kelp::EngineLibrary library({u"/nowhere/a.so"_s, engineLibraryPath()});
    EXPECT_NE(library.mainEntry(), nullptr);
    EXPECT_NE(library.probeEntry(), nullptr);
    EXPECT_TRUE(library.errorText().isEmpty());
}

TEST(EngineLibrary, TellsWhereItLookedWhenThereIsNone)
{
    kelp::EngineLibrary library({u"/nowhere/a.so"_s, u"/nowhere/b.so"_s});
    EXPECT_FALSE(library.load());
    EXPECT_EQ(library.mainEntry(), nullptr);
    EXPECT_EQ(library.probeEntry(), nullptr);
    EXPECT_EQ(library.errorText(), u"找不到引擎库，已查找：/nowhere/a.so, /nowhere/b.so"_s);
}

TEST(EngineLibrary, TellsWhyAFileIsNoLibrary)
{
    const QTemporaryDir scratch;
    QFile file(scratch.filePath(u"broken.so"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    kelp::EngineLibrary library({file.fileName()});
    EXPECT_FALSE(library.load());
    EXPECT_TRUE(library.errorText().contains(u"broken.so"_s));
}

TEST(EngineLibrary, TellsWhenTheEntriesAreMissing)
{
    kelp::EngineLibrary library({u"/lib/x86_64-linux-gnu/libm.so.6"_s});
    if (!QFile::exists(u"/lib/x86_64-linux-gnu/libm.so.6"_s))
        GTEST_SKIP() << "This machine has its libraries elsewhere.";
    EXPECT_FALSE(library.load());
    EXPECT_TRUE(library.errorText().startsWith(u"引擎库缺少所需的两个入口"_s));
}

TEST(EngineLibrary, AnEarlyLoadInTheBackgroundIsSeenByAll)
{
    kelp::EngineLibrary library({engineLibraryPath()});
    std::thread early([&library] { library.preload(); });
    EXPECT_NE(library.mainEntry(), nullptr);
    early.join();
    EXPECT_TRUE(library.load());
}

} // namespace
