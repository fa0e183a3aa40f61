#include "platform/program_library.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

TEST(ProgramLibrary, LiesBesideTheProgramOrWhereItIsInstalled)
{
    EXPECT_EQ(
        programLibraryPaths(u"/opt/k/bin"_s, u"libx.so"_s),
        QStringList({u"/opt/k/bin/libx.so"_s, u"/opt/k/lib/kelp-player/libx.so"_s, u"/opt/k/lib/libx.so"_s}));
}

TEST(ProgramLibrary, SaysWhyItCannotBeLoaded)
{
    QString error;
    EXPECT_EQ(loadLibrary({u"/nowhere/liba.so"_s, u"/nowhere/libb.so"_s}, error), nullptr);
    EXPECT_EQ(error, u"not found: /nowhere/liba.so, /nowhere/libb.so"_s);

    const QTemporaryDir folder;
    const QString damaged = folder.filePath(u"damaged.so"_s);
    QFile file(damaged);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("no library");
    file.close();
    error.clear();
    EXPECT_EQ(loadLibrary({damaged}, error), nullptr);
    EXPECT_TRUE(error.contains(u"damaged.so"_s)) << qPrintable(error);

    error.clear();
    void *const library =
        loadLibrary({damaged, u"/proc/self/exe/none"_s, QStringLiteral(KELP_NET_LIBRARY)}, error);
    ASSERT_NE(library, nullptr) << qPrintable(error);
    EXPECT_TRUE(error.isEmpty());
    EXPECT_EQ(findLibraryEntry(library, "no_such_entry", error), nullptr);
    EXPECT_TRUE(error.contains(u"no_such_entry"_s)) << qPrintable(error);
}
