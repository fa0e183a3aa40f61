#include "window_fixture.h"

#include "app/gui_log_file.h"
#include "app/settings_store.h"

#include <QApplication>
#include <QFile>
#include <atomic>

using namespace Qt::StringLiterals;

namespace {

/// One file for the whole program: the log's path is settled once a process.
QString logFile()
{
    static const QTemporaryDir directory;
    static const QString path = directory.filePath(u"gui.log"_s);
    return path;
}

} // namespace

void WindowTest::SetUp()
{
    qputenv("KELP_GUI_LOG", QFile::encodeName(logFile()));
    qputenv("KELP_SETTINGS_DIR", QFile::encodeName(m_root.filePath(u"set"_s)));
    qputenv("KELP_ENGINE_LOG", QFile::encodeName(m_root.filePath(u"engine.log"_s)));
    qputenv("KELP_PLAYER_BIN", "/bin/true");
    ASSERT_TRUE(applySettingsDirOverride());
    QFile::remove(logFile());
}

void WindowTest::TearDown()
{
    m_window.reset();
    for (const char *name : {"KELP_SETTINGS_DIR", "KELP_ENGINE_LOG", "KELP_PLAYER_BIN", "KELP_GUI_INPROC"})
        qunsetenv(name);
}

void WindowTest::makeWindow()
{
    WindowOptions options;
    options.asksBeforeClosing = m_asksBeforeClosing;
    options.times = m_times;
    options.makeSession = [this](QObject *, const SessionOptions &) {
        return std::make_unique<FakeSession>(m_engine);
    };
    if (m_makeSession)
        options.makeSession = m_makeSession;
    if (m_makeRemote)
        options.makeRemote = m_makeRemote;
    options.askSavePath = [this](QWidget *, const QString &title, const QString &proposal) {
        m_saveAsked << title << proposal;
        return m_savePath;
    };
    auto first = std::make_shared<std::atomic<bool>>(true);
    options.probe = [first, text = m_deviceList, probe = m_probe](const QString &playerBin,
                                                                  const QStringList &args, int timeoutMs,
                                                                  const ProbeLog &log) {
        if (first->exchange(false))
            return PlayerProbeResult{0, text};
        return probe ? probe(args) : runEngineProbe(playerBin, args, timeoutMs, log);
    };
    m_window = std::make_unique<PlayerGuiWindow>(options);
    settle();
}

void WindowTest::settle()
{
    // Queued calls may queue others; timers of the window never settle and are not waited for.
    for (int round = 0; round < 5; ++round)
        QCoreApplication::sendPostedEvents();
}

QString WindowTest::takeLog()
{
    QFile file(logFile());
    QString text;
    if (file.open(QIODevice::ReadOnly))
        text = QString::fromUtf8(file.readAll());
    const QString fresh = text.mid(m_log.size());
    m_log = text;
    return fresh;
}

bool WindowTest::logHas(const QString &text)
{
    QFile file(logFile());
    return file.open(QIODevice::ReadOnly) && QString::fromUtf8(file.readAll()).contains(text);
}

void WindowTest::addFiles(int count)
{
    for (int i = 0; i < count; ++i) {
        const QString path = m_root.filePath(QString(QChar(u'a' + i)) + u".wav"_s);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        m_window->appendFile(path);
    }
}

int main(int argc, char **argv)
{
    // Also when the tests are only listed, which happens without the tests' environment.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    // Also where CTest only asks for the names of the tests, and outside of CTest.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
