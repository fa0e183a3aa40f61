// The built program as its users start it, without a display and in private directories.
#include "tests/support/patience.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int limitMs = kelp_test::patienceMs;

class Program : public testing::Test
{
protected:
    void SetUp() override
    {
        ASSERT_TRUE(m_root.isValid());
        for (const QString &name : {u"home"_s, u"run"_s, u"tmp"_s, u"set"_s})
            ASSERT_TRUE(QDir(m_root.path()).mkdir(name));
        m_environment = QProcessEnvironment::systemEnvironment();
        for (const QString &name : m_environment.keys()) {
            if (name.startsWith(u"KELP_"_s))
                m_environment.remove(name);
        }
        set(u"HOME"_s, m_root.filePath(u"home"_s));
        set(u"XDG_RUNTIME_DIR"_s, m_root.filePath(u"run"_s));
        set(u"TMPDIR"_s, m_root.filePath(u"tmp"_s));
        set(u"KELP_SETTINGS_DIR"_s, m_root.filePath(u"set"_s));
        set(u"KELP_GUARD_TRACE"_s, m_root.filePath(u"guard"_s));
        set(u"KELP_NO_UPDATE_CHECK"_s, u"1"_s);
        set(u"KELP_LANG"_s, u"en"_s);
        set(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
    }

    void set(const QString &name, const QString &value) { m_environment.insert(name, value); }

    void start(QProcess &process, const QStringList &arguments = {})
    {
        process.setProcessEnvironment(m_environment);
        process.start(QStringLiteral(KELP_PROGRAM), arguments);
        ASSERT_TRUE(process.waitForStarted(limitMs));
    }

    QByteArray guardTrace() const
    {
        QFile file(m_root.filePath(u"guard"_s));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    bool waitForGuardTrace(int lines) const
    {
        QElapsedTimer clock;
        clock.start();
        while (guardTrace().count('\n') < lines && clock.elapsed() < limitMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        return guardTrace().count('\n') >= lines;
    }

    static void end(QProcess &process)
    {
        process.kill();
        process.waitForFinished(limitMs);
    }

    QTemporaryDir m_root;
    QProcessEnvironment m_environment;
};

} // namespace

TEST_F(Program, TheSelfCheckPrintsAndLeaves)
{
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    set(u"KELP_GUI_SMOKE_WIDE"_s, u"1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitCode(), 0);
    const QByteArray out = process.readAllStandardOutput();
    EXPECT_TRUE(out.contains("KELP_SMOKE_SIZE w=1280 h=860 min_w=")) << out.constData();
    EXPECT_TRUE(out.contains("KELP_SMOKE lang=en zh=0 ")) << out.constData();
    EXPECT_TRUE(out.contains("res_exists=1 sample=Play lang_env=en")) << out.constData();
    EXPECT_TRUE(
        out.contains("KELP_SMOKE_PLAYLIST n=0 row=-1 skipped=0 last=-1 scroll=0 files=0 play=-1 bold=-1"))
        << out.constData();
    const QByteArray error = process.readAllStandardError();
    EXPECT_TRUE(error.contains("ROW 0 vesperTitleBar mw=")) << error.constData();
    EXPECT_FALSE(error.contains("WIDE")) << error.constData();
}

TEST_F(Program, AStoredLanguageWithoutACatalogueFallsBackToEnglishWithOneWarning)
{
    ASSERT_TRUE(QDir(m_root.path()).mkpath(u"set/KELP"_s));
    QFile settings(m_root.filePath(u"set/KELP/KelpPlayer.ini"_s));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[ui-language]\nui_lang=tlh\n");
    settings.close();
    m_environment.remove(u"KELP_LANG"_s);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    const QByteArray out = process.readAllStandardOutput();
    EXPECT_TRUE(out.contains("KELP_SMOKE lang=en zh=0 ")) << out.constData();
    const QByteArray error = process.readAllStandardError();
    EXPECT_EQ(error.count("ui-language: tlh 的翻译表 :/i18n/tlh.qm 不在资源里 -> 退回 en"), 1)
        << error.constData();
}

TEST_F(Program, AStoredLanguageIsBeatenByTheEnvironments)
{
    ASSERT_TRUE(QDir(m_root.path()).mkpath(u"set/KELP"_s));
    QFile settings(m_root.filePath(u"set/KELP/KelpPlayer.ini"_s));
    ASSERT_TRUE(settings.open(QIODevice::WriteOnly));
    settings.write("[ui-language]\nui_lang=de\n");
    settings.close();
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    for (const auto &[variable, chosen] : {std::pair("fr", "lang=fr "), std::pair("system", "lang=de ")}) {
        set(u"KELP_LANG"_s, QString::fromLatin1(variable));
        QProcess process;
        start(process);
        ASSERT_TRUE(process.waitForFinished(limitMs));
        EXPECT_TRUE(process.readAllStandardOutput().contains(chosen)) << variable;
    }
}

TEST_F(Program, AHangingStartIsSampledAndEndedByTheWatchdog)
{
    const QString samples = m_root.filePath(u"samples"_s);
    set(u"KELP_GUI_STACK_WATCH"_s, u"1"_s);
    set(u"KELP_GUI_STALL_LOG"_s, samples);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    set(u"KELP_SMOKE_HANG_TEST"_s, u"1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 97);
    EXPECT_TRUE(process.readAllStandardError().contains("KELP_SMOKE_HANG watchdog(thread): 12 s"));
    QFile file(samples);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray text = file.readAll();
    EXPECT_TRUE(text.startsWith("STALLSAMPLE stall_ms=4000\n ip=")) << text.constData();
    EXPECT_TRUE(text.contains("STALLSAMPLE stall_ms=8000\n")) << text.constData();
    EXPECT_TRUE(text.contains("runSelfCheck")) << text.constData();
}

TEST_F(Program, ADashArgumentGoesToTheEngineEvenBesideAWindow)
{
    QProcess window;
    start(window);
    ASSERT_TRUE(waitForGuardTrace(1));
    QProcess console;
    m_environment.remove(u"QT_QPA_PLATFORM"_s);
    m_environment.remove(u"DISPLAY"_s);
    start(console, {u"--help"_s});
    ASSERT_TRUE(console.waitForFinished(limitMs));
    EXPECT_EQ(console.exitStatus(), QProcess::NormalExit) << "needs no display";
    EXPECT_EQ(console.exitCode(), 0);
    EXPECT_FALSE(console.readAllStandardOutput().isEmpty());
    EXPECT_EQ(guardTrace().count('\n'), 1) << "the console role takes no lock";
    end(window);
}

TEST_F(Program, TheSettingsDirectoryCountsForTheEngineToo)
{
    const QString place = m_root.filePath(u"made/for/this"_s);
    set(u"KELP_SETTINGS_DIR"_s, u" "_s + place + u" "_s);
    QProcess console;
    start(console, {u"--help"_s});
    ASSERT_TRUE(console.waitForFinished(limitMs));
    EXPECT_TRUE(QFileInfo(place).isDir()) << "the override goes before the choice of the role";
}

TEST_F(Program, ClosedStreamsDoNotHurt)
{
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    for (const QString &arguments : {QString(), u"--help"_s}) {
        QProcess shell;
        shell.setProcessEnvironment(m_environment);
        shell.start(u"/bin/sh"_s,
                    {u"-c"_s, u"exec \"$0\" %1 <&- >&- 2>&-"_s.arg(arguments), QStringLiteral(KELP_PROGRAM)});
        ASSERT_TRUE(shell.waitForFinished(limitMs));
        EXPECT_EQ(shell.exitStatus(), QProcess::NormalExit) << qPrintable(arguments);
        EXPECT_EQ(shell.exitCode(), 0) << qPrintable(arguments);
    }
}

TEST_F(Program, AnEmptyArgumentIsAPlainStart)
{
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    QProcess process;
    start(process, {QString()});
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(process.readAllStandardOutput().contains("KELP_SMOKE_PLAYLIST n=0 "));
}

TEST_F(Program, AFileGivenToASecondWindowIsNotPassedOn)
{
    QFile music(m_root.filePath(u"music.wav"_s));
    ASSERT_TRUE(music.open(QIODevice::WriteOnly));
    music.close();
    const QString log = m_root.filePath(u"first.log"_s);
    set(u"KELP_GUI_LOG"_s, log);
    QProcess first;
    start(first);
    ASSERT_TRUE(waitForGuardTrace(1));
    set(u"KELP_GUI_LOG"_s, m_root.filePath(u"second.log"_s));
    QProcess second;
    start(second, {music.fileName()});
    ASSERT_TRUE(waitForGuardTrace(2));
    second.setReadChannel(QProcess::StandardError);
    QByteArray said;
    while (!said.contains("refusing to start a second instance") && second.waitForReadyRead(limitMs))
        said += second.readAllStandardError();
    const auto contents = [](const QString &path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    };
    EXPECT_TRUE(contents(m_root.filePath(u"second.log"_s)).contains("refusing to start a second instance"));
    EXPECT_FALSE(contents(m_root.filePath(u"second.log"_s)).contains("=== KelpPlayer"))
        << "no window is made";
    EXPECT_FALSE(contents(log).contains("music.wav"));
    end(second);
    end(first);
}

TEST_F(Program, HooksThatFireSaySo)
{
    set(u"KELP_GUI_JUMP_AT"_s, u"0.1:0"_s);
    set(u"KELP_GUI_NEXT_EVERY"_s, u"1:1"_s);
    set(u"KELP_GUI_NEXT_AFTER"_s, u"0.2"_s);
    set(u"KELP_GUI_STOP_AFTER"_s, u"0.3"_s);
    set(u"KELP_GUI_QUIT_AFTER"_s, u"1.5"_s);
    set(u"KELP_GUI_MOVEROW"_s, u"0:1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitCode(), 0);
    const QByteArray error = process.readAllStandardError();
    for (const char *line :
         {"[gui] KELP_GUI_JUMP_AT: ", "[gui] KELP_GUI_NEXT_EVERY: 触发下一首\n",
          "[gui] KELP_GUI_NEXT_AFTER: 触发下一首\n", "[gui] KELP_GUI_STOP_AFTER: 触发停止\n",
          "[gui] KELP_GUI_QUIT_AFTER: 停止并退出\n", "[gui] KELP_GUI_MOVEROW: 0 -> 1 "})
        EXPECT_EQ(error.count(line), 1) << line << error.constData();
}

TEST_F(Program, TheRigDumpQuitsByItself)
{
    set(u"KELP_GUI_RIGDUMP"_s, QString());
    set(u"KELP_GUI_RIG"_s, u"bs775"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitCode(), 0);
    EXPECT_TRUE(process.readAllStandardError().contains("[gui] KELP_GUI_RIGDUMP: bs775\n"));
}

TEST_F(Program, ASecondWindowIsRefusedAndTheTraceSaysWhy)
{
    QProcess first;
    start(first);
    ASSERT_TRUE(waitForGuardTrace(1));
    EXPECT_TRUE(guardTrace().contains("GetLastError=0 (183=ALREADY_EXISTS)")) << guardTrace().constData();
    QProcess second;
    start(second);
    ASSERT_TRUE(waitForGuardTrace(2));
    EXPECT_TRUE(guardTrace().contains("GetLastError=183 (183=ALREADY_EXISTS)")) << guardTrace().constData();
    second.setReadChannel(QProcess::StandardError);
    QByteArray said = second.readAllStandardError();
    while (!said.contains("refusing to start a second instance") && second.waitForReadyRead(limitMs))
        said += second.readAllStandardError();
    EXPECT_TRUE(said.contains("refusing to start a second instance"));
    EXPECT_EQ(first.state(), QProcess::Running);
    end(second);
    end(first);
}

TEST_F(Program, SeveralWindowsMayBeAllowed)
{
    QProcess first;
    start(first);
    ASSERT_TRUE(waitForGuardTrace(1));
    set(u"KELP_GUI_ALLOW_MULTI"_s, u"1"_s);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    QProcess second;
    start(second);
    ASSERT_TRUE(second.waitForFinished(limitMs));
    EXPECT_TRUE(second.readAllStandardOutput().contains("KELP_SMOKE_SIZE"));
    end(first);
}

TEST_F(Program, TheScreenshotHookSavesAPicture)
{
    const QString picture = m_root.filePath(u"shot.png"_s);
    set(u"KELP_GUI_SHOT"_s, picture);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_TRUE(process.readAllStandardError().contains("-> saved (visible=1 1280x860)"));
    EXPECT_GT(QFileInfo(picture).size(), 1000);
}

TEST_F(Program, TheScreenshotMayBeTakenLater)
{
    const QString picture = m_root.filePath(u"later.png"_s);
    set(u"KELP_GUI_SHOT"_s, picture);
    set(u"KELP_GUI_SHOT_AFTER"_s, u"0.5"_s);
    set(u"KELP_GUI_QUIT_AFTER"_s, u"1"_s);
    QProcess process;
    start(process);
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_TRUE(process.readAllStandardError().contains("-> saved (visible=1"));
    EXPECT_GT(QFileInfo(picture).size(), 1000);
}

TEST_F(Program, ABadRowMoveIsReportedAndTheProgramGoesOn)
{
    set(u"KELP_GUI_MOVEROW"_s, u"7"_s);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    QProcess process;
    start(process, {QString()});
    ASSERT_TRUE(process.waitForFinished(limitMs));
    EXPECT_EQ(process.exitCode(), 0) << "an empty argument is a plain start";
    EXPECT_TRUE(process.readAllStandardError().contains("KELP_GUI_MOVEROW bad spec='7' (want from:to)"));
}

TEST_F(Program, TheStepsOfTheStartFollowEachOther)
{
    // All that the steps say goes into one pipe, and so stands there in the order of the steps.
    for (const QString &name : {u"KELP_GUARD_TRACE"_s, u"KELP_GUI_LOG"_s})
        set(name, u"/dev/stderr"_s);
    // A session inside the program would take its output lines.
    set(u"KELP_GUI_INPROC"_s, u"0"_s);
    const QString old = m_root.filePath(u"tmp/kelp-log-old"_s);
    ASSERT_TRUE(QDir().mkdir(old));
    const timespec longAgo{1000000000, 0}; // a young one may belong to a program that runs
    const timespec times[] = {longAgo, longAgo};
    ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(old).constData(), times, 0), 0);
    QFile music(m_root.filePath(u"music.wav"_s));
    ASSERT_TRUE(music.open(QIODevice::WriteOnly));
    music.close();
    set(u"KELP_GUI_SHOT"_s, m_root.filePath(u"shot.png"_s));
    set(u"KELP_GUI_MOVEROW"_s, u"bad"_s);
    set(u"KELP_GUI_SMOKE"_s, u"1"_s);
    set(u"KELP_GUI_STEPS"_s, u"1"_s);
    set(u"KELP_GUI_STACK_WATCH"_s, u"1"_s);
    // The check is begun; where it asks, nobody answers.
    m_environment.remove(u"KELP_NO_UPDATE_CHECK"_s);
    set(u"KELP_UPDATE_URL"_s, u"http://127.0.0.1:9/"_s);
    QProcess process;
    process.setProcessChannelMode(QProcess::MergedChannels);
    start(process, {music.fileName()});
    ASSERT_TRUE(process.waitForFinished(limitMs));
    const QByteArray said = process.readAll();
    qsizetype from = 0;
    for (const char *step : {
             "swept 1 empty + 0 aged session log dir(s)", // logs, before anything of the window
             "GetLastError=0 (183=ALREADY_EXISTS)",       // the single instance
             "KELP_GUI_STEPS: palette #c9a96e",           // the palette
             "KELP_GUI_STEPS: language en",               // the translator
             "KELP_GUI_STEPS: icon",                      // the icon
             "=== KelpPlayer",                            // the window is made, in the language chosen before
             "KELP_GUI_STEPS: about",                     // the block of documents, with the check's button
             "KELP_GUI_STEPS: shown",                     // the window is shown
             "KELP_GUI_STEPS: heartbeat",                 // the beat that the next watches
             "KELP_GUI_STEPS: stack watch",               // the stall sampler
             "[shot] ",                                   // the picture
             "KELP_GUI_STEPS: update check",              // the automatic check
             "Play command: ",                            // the file of the command line
             "KELP_GUI_MOVEROW bad spec='bad'",           // the other hooks
             "KELP_SMOKE_SIZE w=",                        // the self-check, from the event loop's threshold
         }) {
        const qsizetype at = said.indexOf(step, from);
        ASSERT_GE(at, 0) << step << " is missing, or came too early:\n" << said.constData();
        from = at;
    }
    EXPECT_EQ(said.count("KELP_GUI_STEPS: "), 9) << said.constData();
    EXPECT_TRUE(said.contains("KELP_SMOKE lang=en")) << "the language was chosen by then";
}

int main(int argc, char **argv)
{
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
