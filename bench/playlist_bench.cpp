// What a long playlist costs, beside a bare list of the toolkit that takes the same rows in the same run. The
// window is a real one on no display, with a session that plays nothing. Nothing here fails on a time.
//
// usage: playlist_bench [ROWS …]     1000, 20000 and 200000 without a number

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "playback/add_plan.h"
#include "playback/playlist_widget.h"
#include "tests/support/settings_on_disk.h"
#include "tests/ui/fake_session.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QListWidget>
#include <QTemporaryDir>
#include <QTest>
#include <algorithm>
#include <atomic>
#include <cstdio>
#include <fcntl.h>
#include <functional>
#include <malloc.h>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int filesPerFolder = 1000;
constexpr int quickRounds = 5;
constexpr int saveRounds = 9;
constexpr int stepRounds = 41;
constexpr int periodicRounds = 7;
constexpr double periodicSec = 5.;

double millisecondsOf(const std::function<void()> &work)
{
    QElapsedTimer clock;
    clock.start();
    work();
    return static_cast<double>(clock.nsecsElapsed()) / 1e6;
}

double middle(QList<double> values)
{
    std::sort(values.begin(), values.end());
    return values.at(values.size() / 2);
}

double medianOf(int rounds, const std::function<void()> &work)
{
    QList<double> took;
    for (int i = 0; i < rounds; ++i)
        took.append(millisecondsOf(work));
    return middle(took);
}

double heldMegabytes()
{
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

/// Empty files with names as long as real ones.
QStringList makeFiles(const QString &root, int count)
{
    QStringList paths;
    for (int i = 0; i < count; ++i) {
        const QString folder =
            root + u"/Some Artist of Note/An Album of %1"_s.arg(i / filesPerFolder, 3, 10, QChar(u'0'));
        if (i % filesPerFolder == 0)
            QDir().mkpath(folder);
        paths.append(folder + u"/%1 - A Title of Usual Length.flac"_s.arg(i, 6, 10, QChar(u'0')));
        ::close(::open(QFile::encodeName(paths.last()).constData(), O_CREAT | O_WRONLY | O_CLOEXEC, 0600));
    }
    return paths;
}

/// What lays a list out and paints it.
void present(QListWidget &list)
{
    list.doItemsLayout();
    list.viewport()->repaint();
}

void fillBare(QListWidget &list, const QStringList &paths)
{
    for (const QString &path : paths) {
        auto *item = new QListWidgetItem(path.sliced(path.lastIndexOf(u'/') + 1), &list);
        item->setToolTip(path);
        item->setData(Qt::UserRole, path);
    }
    list.doItemsLayout();
}

void row(const char *what, double took, double bare, const char *note)
{
    std::printf("  %-44s %10.2f ms", what, took);
    if (bare > 0)
        std::printf("   %7.2f of %s (%.2f ms)", took / bare, note, bare);
    std::printf("\n");
}

struct Figures
{
    double add = 0.;
    double again = 0.;
    double restore = 0.;
    double save = 0.;
    double selectAll = 0.;
    double next = 0.;
};

class Bench
{
public:
    Bench()
    {
        qputenv("KELP_GUI_LOG", QFile::encodeName(m_root.filePath(u"gui.log"_s)));
        qputenv("KELP_ENGINE_LOG", QFile::encodeName(m_root.filePath(u"engine.log"_s)));
        qputenv("KELP_PLAYER_BIN", "/bin/true");
    }

    Figures measure(int rows)
    {
        const QStringList paths = makeFiles(m_root.filePath(u"music%1"_s.arg(rows)), rows);
        std::printf("%d rows\n", rows);
        Figures took;
        useSettings(u"set%1"_s.arg(rows));
        measureBare(paths);
        auto window = makeWindow();
        PlaylistWidget &list = *window->widgets().playlist;
        QList<double> added;
        QList<double> saved;
        QList<double> collected;
        QList<double> painted;
        for (int round = 0; round < quickRounds; ++round) {
            window->clearPlaylist();
            QCoreApplication::processEvents();
            const double adding = millisecondsOf([&] { window->addPaths(paths); });
            painted.append(millisecondsOf([&] { present(list); }));
            added.append(adding + painted.last());
            saved.append(millisecondsOf([&] { window->savePlaylist(); }));
            collected.append(millisecondsOf([&] { collectPaths(paths); }));
        }
        const double addAll = middle(added);
        took.save = middle(saved);
        took.add = addAll - took.save;
        row("adding paths, without saving", took.add, m_bareAdd, "a bare list");
        row("  of it, asking the disk for each file", middle(collected), 0, "");
        row("  of it, laying out and painting", middle(painted), 0, "");
        row("  that and saving", addAll, 0, "");
        took.again = medianOf(quickRounds, [&] { window->addPaths(paths); }) - took.save;
        row("the same paths again, without saving", took.again, m_bareAdd, "a bare list's adding");
        const auto [save, ownWrite] = saveTimes(*window);
        row("savePlaylist", save, ownWrite, "QSettings' own write");
        took.selectAll = millisecondsOf([&] {
            list.selectAll();
            list.viewport()->repaint();
        });
        row("select all", took.selectAll, m_bareSelect, "a bare list");
        took.next = stepTime(*window);
        periodicSaves(*window);
        row("next track, key to load line", took.next, 0, "");
        double insertMs = 0.;
        const double held = heldByRows(paths, insertMs);
        row("the rows alone, laid out and not painted", insertMs, m_bareInsert, "a bare list");
        std::printf("  %-44s %10.0f bytes a row beside its path; a bare list %.0f\n", "memory",
                    held * 1e6 / rows, m_bareHeld * 1e6 / rows);
        const double clear = millisecondsOf([&] { window->clearPlaylist(); });
        const double undo = millisecondsOf([&] { window->undoPlaylist(); });
        row("clear, with saving", clear, 0, "");
        row("undo of that, with saving", undo, 0, "");
        window.reset();

        // A copy under another name has to be read anew.
        const QString stored = SettingsOnDisk().fileName();
        const QString plainFile = m_root.filePath(u"plain%1.ini"_s.arg(rows));
        QFile::copy(stored, plainFile);
        QListWidget bare;
        bare.resize(300, 600);
        bare.show();
        QCoreApplication::processEvents();
        const double read = millisecondsOf([&] {
            const QSettings plain(plainFile, QSettings::IniFormat);
            for (const QString &text : plain.value("playlist"_L1).toStringList()) {
                const QStringList fields = text.split(QChar(0x1f));
                auto *item = new QListWidgetItem(fields.at(0), &bare);
                item->setToolTip(fields.at(1));
                item->setData(Qt::UserRole, fields.at(1));
            }
            present(bare);
        });
        useSettings(u"again%1"_s.arg(rows));
        auto fresh = makeWindow();
        useSettings(u"copy%1"_s.arg(rows));
        QDir().mkpath(QFileInfo(SettingsOnDisk().fileName()).path());
        QFile::copy(stored, SettingsOnDisk().fileName());
        took.restore = millisecondsOf([&] {
            fresh->restorePlaylist();
            present(*fresh->widgets().playlist);
        });
        if (fresh->widgets().playlist->count() != rows || bare.count() != rows)
            std::printf("  not all rows came back\n");
        row("restore at start", took.restore, read, "QSettings' read, unchecked, into a bare list");
        return took;
    }

private:
    void useSettings(const QString &name)
    {
        qputenv("KELP_SETTINGS_DIR", QFile::encodeName(m_root.filePath(name)));
        applySettingsDirOverride();
    }

    std::unique_ptr<PlayerGuiWindow> makeWindow()
    {
        WindowOptions options;
        options.asksBeforeClosing = false;
        options.makeSession = [this](QObject *, const SessionOptions &) {
            return std::make_unique<FakeSession>(m_engine);
        };
        options.probe = [](const QString &, const QStringList &, int, const ProbeLog &) {
            return PlayerProbeResult{0, {}};
        };
        auto window = std::make_unique<PlayerGuiWindow>(options);
        window->show();
        QCoreApplication::processEvents();
        return window;
    }

    void measureBare(const QStringList &paths)
    {
        QListWidget bare;
        bare.setSelectionMode(QListWidget::ExtendedSelection);
        bare.resize(300, 600);
        bare.show();
        QList<double> added;
        QList<double> inserted;
        for (int round = 0; round < quickRounds; ++round) {
            bare.clear();
            QCoreApplication::processEvents();
            const double before = heldMegabytes();
            inserted.append(millisecondsOf([&] { fillBare(bare, paths); }));
            added.append(inserted.last() + millisecondsOf([&] { present(bare); }));
            m_bareHeld = heldMegabytes() - before;
        }
        m_bareAdd = middle(added);
        m_bareInsert = middle(inserted);
        m_bareSelect = millisecondsOf([&] {
            bare.selectAll();
            bare.viewport()->repaint();
        });
    }

    static double heldByRows(const QStringList &paths, double &insertMs)
    {
        PlaylistWidget list;
        list.resize(300, 600);
        list.show();
        QCoreApplication::processEvents();
        const double before = heldMegabytes();
        insertMs = millisecondsOf([&] {
            list.appendFiles(paths);
            list.doItemsLayout();
        });
        return heldMegabytes() - before;
    }

    /// Both in turn, so that they meet the same machine: { the window's saving, QSettings' own write }.
    std::pair<double, double> saveTimes(PlayerGuiWindow &window)
    {
        const QStringList rows = window.widgets().playlist->savedRows();
        const QString file = m_root.filePath(u"own.ini"_s);
        QFile::remove(file);
        QFile::copy(SettingsOnDisk().fileName(), file);
        QList<double> ours;
        QList<double> own;
        for (int round = 0; round <= saveRounds; ++round) {
            const double plain = millisecondsOf([&] {
                QSettings store(file, QSettings::IniFormat);
                store.setValue("playlist"_L1, rows);
                store.setValue("playlistRow"_L1, 0);
                store.setValue("lastPlayed"_L1, QString());
                store.setValue("lastPlayedKey"_L1, QString());
                store.sync();
            });
            const double whole = millisecondsOf([&] { window.savePlaylist(); });
            if (round == 0)
                continue; // parses the files
            own.append(plain);
            ours.append(whole);
        }
        return {middle(ours), middle(own)};
    }

    double stepTime(PlayerGuiWindow &window)
    {
        window.startPlayback(window.widgets().playlist->count() / 2);
        QList<double> took;
        QList<double> wholes;
        for (int i = 0; i < stepRounds; ++i) {
            QCoreApplication::processEvents();
            const qsizetype lines = m_engine.lines().size();
            // Through the shortcut, as a key comes in; what is measured ends when the session is told.
            QElapsedTimer clock;
            double loadAfter = -1.;
            m_engine.answer = [&](FakeSession &, const QString &line) {
                if (line.startsWith("load "_L1))
                    loadAfter = static_cast<double>(clock.nsecsElapsed()) / 1e6;
            };
            clock.start();
            QTest::keyClick(&window, Qt::Key_Right, Qt::ControlModifier);
            wholes.append(static_cast<double>(clock.nsecsElapsed()) / 1e6);
            took.append(loadAfter);
            m_engine.answer = {};
            if (m_engine.lines().size() == lines || loadAfter < 0.)
                std::printf("  no load line was written\n");
        }
        row("  of it, the largest of the steps", *std::max_element(took.begin(), took.end()), 0, "");
        row("  until the key is done with", middle(wholes), 0, "");
        row("  the last played row, when its time has come", millisecondsOf([&] {
                while (window.trackStart().lastPlayedDirty)
                    QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
            }),
            0, "");
        window.killProc(true);
        return middle(took);
    }

    /// What the saving of the position holds up, every five seconds of playing: the one call, whatever the
    /// event loop does until the file is written, and a next track in the midst of the writing. In turn with
    /// the same two values written by this thread itself.
    void periodicSaves(PlayerGuiWindow &window)
    {
        window.startPlayback(0);
        double longest = 0.;
        double nextTrack = 0.;
        QList<double> direct;
        for (int round = 1; round <= periodicRounds; ++round) {
            QCoreApplication::processEvents();
            const QString progress = u"PG 1 %1 100000"_s.arg(periodicSec * round);
            QElapsedTimer clock;
            clock.start();
            m_engine.current->say(progress);
            QCoreApplication::sendPostedEvents();
            longest = std::max(longest, static_cast<double>(clock.nsecsElapsed()) / 1e6);
            if (readUserSetting(settings::resumeSec) != periodicSec * round)
                std::printf("  the position was not saved\n");
            if (round % 2 == 0)
                nextTrack = std::max(nextTrack, millisecondsOf([&] { window.stepRow(1); }));
            longest = std::max(longest, longestTurnUntilWritten());
            direct.append(millisecondsOf([&] {
                QSettings file(SettingsOnDisk().fileName(), QSettings::IniFormat);
                file.setValue("play/resume_path"_L1, u"/a/track.flac"_s);
                file.setValue("play/resume_sec"_L1, periodicSec * round);
                file.sync();
            }));
            window.startPlayback(0);
        }
        row("a periodic save, the longest stall", longest, middle(direct), "writing it directly");
        row("  a next track while it is written", nextTrack, 0, "");
        window.killProc(true);
    }

    /// The longest turn of the event loop, in milliseconds, while another thread waits for the file.
    static double longestTurnUntilWritten()
    {
        std::atomic<bool> written = false;
        std::thread waiter([&written] {
            userSettingsFile().flush();
            written = true;
        });
        double longest = 0.;
        while (!written) {
            longest = std::max(longest, millisecondsOf([] {
                                   QCoreApplication::processEvents();
                                   readUserSetting(settings::vizMode);
                               }));
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        waiter.join();
        return longest;
    }

    // In memory where there is such a place: a disk's moods are larger than what is measured.
    QTemporaryDir m_root{QDir(u"/dev/shm"_s).exists() ? u"/dev/shm/playlist_bench"_s : QString()};
    FakeEngine m_engine;
    double m_bareAdd = 0.;
    double m_bareInsert = 0.;
    double m_bareSelect = 0.;
    double m_bareHeld = 0.;
};

void growth(const Figures &few, const Figures &many, double factor)
{
    std::printf(
        "%.0f times the rows take: adding %.1f, again %.1f, saving %.1f, restoring %.1f times the time\n",
        factor, many.add / few.add, many.again / few.again, many.save / few.save, many.restore / few.restore);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    QList<int> sizes;
    for (int i = 1; i < argc; ++i)
        sizes.append(std::atoi(argv[i]));
    if (sizes.isEmpty())
        sizes = {1000, 20000, 200000};
    Bench bench;
    QList<Figures> figures;
    for (const int rows : sizes) {
        figures.append(bench.measure(rows));
        const qsizetype last = figures.size() - 1;
        if (last > 0)
            growth(figures.at(last - 1), figures.at(last), static_cast<double>(rows) / sizes.at(last - 1));
    }
    return 0;
}
