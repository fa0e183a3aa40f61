#include "app/self_check.h"

#include "app/heartbeat.h"
#include "playback/playlist_widget.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QLayout>
#include <QScrollBar>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds watchInterval(100);
constexpr int watchRounds = 120;
constexpr std::chrono::seconds deliberateHang(20);
constexpr int roundMs = 300;
constexpr int earliestEndMs = 1200;
constexpr int latestEndMs = 2500;

void watchForHang()
{
    for (int round = 0; round < watchRounds; ++round) {
        std::this_thread::sleep_for(watchInterval);
        if (heartbeat::eventLoopLeft())
            return;
    }
    // Written by the system call and left without clean-up: whatever hangs may hold any lock of this process.
    static constexpr char line[] =
        "KELP_SMOKE_HANG watchdog(thread): 12 s 未退出 —— 主线程同步阻塞(审计 H2), 强制退出码 97\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, line, sizeof line - 1);
    std::_Exit(selfCheckHangCode);
}

void print(const QString &line)
{
    std::printf("%s\n", qUtf8Printable(line));
    std::fflush(stdout);
}

void printSize(const PlayerGuiWindow &window)
{
    print(u"KELP_SMOKE_SIZE w=%1 h=%2 min_w=%3"_s.arg(window.width())
              .arg(window.height())
              .arg(window.minimumSizeHint().width()));
}

void printWide(const PlayerGuiWindow &window)
{
    const QLayout *rows = window.centralWidget()->layout();
    for (int row = 0; row < rows->count(); ++row) {
        const QLayoutItem *item = rows->itemAt(row);
        const int minimum = item->minimumSize().width();
        if (const QWidget *widget = const_cast<QLayoutItem *>(item)->widget())
            std::fprintf(stderr, "ROW %d %s mw=%d\n", row, qUtf8Printable(widget->objectName()), minimum);
        else
            std::fprintf(stderr, "ROW %d <layout> mw=%d\n", row, minimum);
    }
    for (const QWidget *child : window.findChildren<QWidget *>()) {
        if (child->width() > window.width())
            std::fprintf(
                stderr, "WIDE %d %s (%s) parent=%s\n", child->width(), child->metaObject()->className(),
                qUtf8Printable(child->objectName()),
                qUtf8Printable(child->parentWidget() ? child->parentWidget()->objectName() : QString()));
    }
    std::fflush(stderr);
}

void printLanguage(const LanguageChoice &language)
{
    print(
        u"KELP_SMOKE lang=%1 zh=%2 locname=%3 res_exists=%4 sample=%5 lang_env=%6 tag=%7"_s.arg(language.code)
            .arg(isChinese(language.code) ? 1 : 0)
            .arg(language.localeName)
            .arg(QFile::exists(u":/i18n/en.qm"_s) ? 1 : 0)
            .arg(QCoreApplication::translate("DockBar", "播放"))
            .arg(qEnvironmentVariable("KELP_LANG"))
            .arg(QLocale(language.localeName).bcp47Name()));
}

void printPlaylist(const PlayerGuiWindow &window)
{
    const PlaylistWidget &list = *window.widgets().playlist;
    int files = 0;
    for (int row = 0; row < list.count(); ++row)
        files += QFileInfo(list.entryAt(row).path).isFile() ? 1 : 0;
    QString line =
        u"KELP_SMOKE_PLAYLIST n=%1 row=%2 skipped=%3 last=%4 scroll=%5 files=%6"_s.arg(list.count())
            .arg(list.currentRow())
            .arg(window.skippedAtRestore())
            .arg(window.lastPlayedRow())
            .arg(list.verticalScrollBar()->value())
            .arg(files);
    line += u" play=%1"_s.arg(window.trackStart().playingRow);
    line += u" bold=%1"_s.arg(list.highlightedRow());
    print(line);
}

void armEnd(PlayerGuiWindow &window)
{
    auto *rounds = new QTimer(&window);
    rounds->setProperty("tries", 0);
    QObject::connect(rounds, &QTimer::timeout, rounds,
                     [rounds] { rounds->setProperty("tries", rounds->property("tries").toInt() + 1); });
    rounds->start(roundMs);
    // The earlier end needs an event loop that has turned; the later one comes in any case.
    QTimer::singleShot(earliestEndMs, &window, [rounds] {
        if (rounds->property("tries").toInt() > 0)
            QCoreApplication::quit();
    });
    QTimer::singleShot(latestEndMs, &window, &QCoreApplication::quit);
}

} // namespace

void runSelfCheck(PlayerGuiWindow &window, const HookPlan &plan, const LanguageChoice &language)
{
    std::thread(watchForHang).detach();
    if (plan.smokeHang)
        std::this_thread::sleep_for(deliberateHang);
    printSize(window);
    if (plan.smokeWide)
        printWide(window);
    printLanguage(language);
    printPlaylist(window);
    armEnd(window);
}
