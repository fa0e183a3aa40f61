#include "engine/engine_probe.h"

#include "engine/session_support.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <utility>

using namespace Qt::StringLiterals;
using namespace session_support;

namespace {

struct LogEntry
{
    QString text;
    bool isError;
};

class EngineProbe : public testing::Test
{
protected:
    PlayerProbeResult run(const QStringList &args, int timeoutMs = patienceMs, const QString &program = {})
    {
        return runEngineProbe(program.isEmpty() ? engineProgramPath() : program, args, timeoutMs,
                              [this](const QString &text, bool isError) {
                                  log.append({text, isError});
                              });
    }

    QList<LogEntry> log;
};

TEST_F(EngineProbe, GivesTheExitCodeAndTheWholeOutput)
{
    const PlayerProbeResult result = run({u"-list"_s, u"a b"_s});
    EXPECT_EQ(result.rc, 0);
    EXPECT_EQ(result.text, engineProgramPath() + u"\n-list\na b\n"_s);
    EXPECT_TRUE(log.isEmpty());
    EXPECT_EQ(run({u"-exit"_s, u"9"_s, u"words"_s}).rc, 9);
    EXPECT_TRUE(log.isEmpty()) << "a refusal with words speaks for itself";
}

TEST_F(EngineProbe, ALargeAnswerArrivesWhole)
{
    EXPECT_EQ(run({u"-fill"_s, u"3000000"_s}).text.size(), 3000000);
}

TEST_F(EngineProbe, ANonZeroCodeWithoutWordsIsLogged)
{
    EXPECT_EQ(run({u"-exit"_s, u"9"_s}).rc, 9);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].isError);
    EXPECT_EQ(log[0].text, u"探测返回非零（9）：-exit 9"_s);
}

TEST_F(EngineProbe, AMissingProgramCannotBeStarted)
{
    const PlayerProbeResult result = run({u"-list"_s}, 1000, u"/nowhere/engine"_s);
    EXPECT_EQ(result.rc, -3);
    EXPECT_TRUE(result.text.startsWith(u"[probe] cannot start /nowhere/engine: "_s));
}

TEST_F(EngineProbe, ACrashIsMinusFour)
{
    const PlayerProbeResult result = run({u"-test"_s, u"crash"_s});
    EXPECT_EQ(result.rc, -4);
    EXPECT_EQ(result.text, u"about to crash\n"_s);
}

TEST_F(EngineProbe, BothStreamsAreMerged)
{
    EXPECT_EQ(run({u"-test"_s, u"both"_s}).text, u"to stdout\nto stderr\n"_s);
}

TEST_F(EngineProbe, ATimeOutEndsTheChildAndTellsSo)
{
    const PlayerProbeResult result = run({u"-test"_s, u"hang"_s, u"/nowhere"_s}, 100);
    EXPECT_EQ(result.rc, -1000);
    EXPECT_EQ(result.text, u"[probe] timed out after 100 ms (-test hang /nowhere) -- killed"_s);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log[0].isError);
    EXPECT_TRUE(log[0].text.startsWith(u"探测超时（100 ms）：-test hang /nowhere"_s));
}

TEST_F(EngineProbe, ATimeOutLeavesNoProcessBehind)
{
    const QTemporaryDir scratch;
    run({u"-test"_s, u"hang"_s, scratch.path()}, 100);
    for (const QString &pid : QDir(u"/proc"_s).entryList({u"[0-9]*"_s}, QDir::Dirs)) {
        QFile command(u"/proc/%1/cmdline"_s.arg(pid));
        const bool isOpen = command.open(QIODevice::ReadOnly);
        EXPECT_FALSE(isOpen && command.readAll().contains(QFile::encodeName(scratch.path())))
            << qPrintable(pid);
    }
}

TEST_F(EngineProbe, WithoutAKnownEngineTheProgramAsksItself)
{
    // Its own program: of this test it is the one that lists its tests.
    const PlayerProbeResult result = runEngineProbe({}, {u"--gtest_list_tests"_s}, patienceMs, {});
    EXPECT_EQ(result.rc, 0);
    EXPECT_TRUE(result.text.contains(u"WithoutAKnownEngineTheProgramAsksItself"_s));
}

TEST_F(EngineProbe, AnEmptyHangVariableIsNone)
{
    const Variable hang("KELP_GUI_PROBE_HANG", "");
    EXPECT_EQ(run({u"-list"_s}).rc, 0);
}

TEST_F(EngineProbe, TheHangSelfTestTimesOutAfterItsOwnTime)
{
    const Variable hang("KELP_GUI_PROBE_HANG", "1");
    QElapsedTimer timer;
    timer.start();
    const PlayerProbeResult result = run({u"-list"_s}, 50);
    EXPECT_GE(timer.elapsed(), 1200);
    EXPECT_EQ(result.rc, -1000);
    EXPECT_EQ(result.text, u"[probe] timed out after 1200 ms (KELP_GUI_PROBE_HANG self-test) -- killed"_s);
}

TEST_F(EngineProbe, SessionVariablesAreNotPassedOn)
{
    for (const char *name :
         {"KELP_ENGINE_LOG", "KELP_INPROC", "KELP_INPROC_LOG", "KELP_GUI_LOG", "KELP_GUI_AUTOPLAY",
          "KELP_GUI_JUMP_AT", "KELP_GUI_NEXT_AFTER", "KELP_GUI_STOP_AFTER"}) {
        const Variable variable(name, "set");
        const QString word = QString::fromUtf8(name);
        EXPECT_EQ(run({u"-test"_s, u"environment"_s, word}).text, word + u"=<unset>\n"_s);
    }
    const Variable other("KELP_PLAYER_CONF", "kept");
    EXPECT_EQ(run({u"-test"_s, u"environment"_s, u"KELP_PLAYER_CONF"_s}).text, u"KELP_PLAYER_CONF=kept\n"_s);
}

TEST_F(EngineProbe, RunsInTheFolderOfTheFirstOperandThatIsAFile)
{
    const QTemporaryDir scratch;
    QFile file(scratch.filePath(u"a b.cue"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(run({u"-where"_s, u"/nowhere/x"_s, scratch.path(), file.fileName()}).text,
              QFileInfo(scratch.path()).canonicalFilePath());
}

TEST_F(EngineProbe, ReadsNothingFromTheUser)
{
    EXPECT_EQ(run({u"-test"_s, u"echo"_s}).rc, 0) << "the end of its input is the end of the engine";
}

TEST_F(EngineProbe, ATraceLeavesALineEach)
{
    const Variable trace("KELP_GUI_PROBE_TRACE", "");
    run({u"-exit"_s, u"0"_s, u"%1 %2"_s});
    ASSERT_EQ(log.size(), 1);
    EXPECT_EQ(log[0].text, u"[probe] -exit 0 %1 %2 rc=0 bytes=5"_s);
    EXPECT_FALSE(log[0].isError);
}

TEST(InProcessProbe, CallsTheLibraryOnThisThread)
{
    QStringList stages;
    const PlayerProbeResult result =
        runInProcessProbe(engineLibrary(), {}, {u"-list"_s, QString(200, u'x')}, [&](const QString &label) {
            stages.append(label);
            return QString();
        });
    EXPECT_EQ(result.rc, 0);
    EXPECT_TRUE(result.text.startsWith(u"KelpPlayerEngine\n-list\n"_s));
    EXPECT_EQ(stages, (QStringList{u"probe -list "_s + QString(114, u'x'), QString()}));
}

TEST(InProcessProbe, ShowsTheEngineTheNameItIsGiven)
{
    EXPECT_TRUE(
        runInProcessProbe(engineLibrary(), u"/opt/engine"_s, {}, {}).text.startsWith(u"/opt/engine\n"_s));
    EXPECT_EQ(runInProcessProbe(engineLibrary(), {}, {u"-exit"_s, u"6"_s}, {}).rc, 6);
}

TEST(InProcessProbe, AnAnswerOfAMebibyteIsCutAtTheBuffer)
{
    EXPECT_EQ(runInProcessProbe(engineLibrary(), {}, {u"-fill"_s, u"1048574"_s}, {}).text.size(), 1048574);
    EXPECT_EQ(runInProcessProbe(engineLibrary(), {}, {u"-fill"_s, u"1048575"_s}, {}).text.size(), 1048575);
    EXPECT_EQ(runInProcessProbe(engineLibrary(), {}, {u"-fill"_s, u"1048576"_s}, {}).text.size(), 1048575);
    EXPECT_EQ(runInProcessProbe(engineLibrary(), {}, {u"-fill"_s, u"2000000"_s}, {}).text.size(), 1048575);
}

TEST(InProcessProbe, WithoutALibraryItIsNotRun)
{
    kelp::EngineLibrary missing({u"/nowhere/libengine.so"_s});
    const PlayerProbeResult result = runInProcessProbe(missing, {}, {u"-list"_s}, {});
    EXPECT_EQ(result.rc, -1);
    EXPECT_TRUE(result.text.contains(u"/nowhere/libengine.so"_s));
}

} // namespace
