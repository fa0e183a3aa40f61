// window_driver FILE...: the program's window over real sessions, with the files in its list; commands come
// in on standard input, one a line. For tests that press what a listener presses.
//   start ROW   next   stop   pause   order AXIS   repeat AXIS   device ID   state NAME   quit
//   show   place ROW (where it stands on the screen)   rows NAME (the files in their order)
#include "app/settings_store.h"
#include "playback/playlist_widget.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QComboBox>
#include <QSocketNotifier>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace {

void chooseDevice(QComboBox *combo, const QString &id)
{
    if (combo->findData(id) < 0)
        combo->addItem(id, id);
    combo->setCurrentIndex(combo->findData(id));
}

void tellState(PlayerGuiWindow &window, const QString &name)
{
    const TrackStartState &state = window.trackStart();
    window.logFileOnly(u"[driver] %1 row=%2 playing=%3 runs=%4 announced=%5"_s.arg(name)
                           .arg(state.playingRow)
                           .arg(state.uiPlaying)
                           .arg(window.sessionRuns())
                           .arg(window.trackAnnounced()));
}

/// The row's rectangle on the screen.
void tellPlace(PlayerGuiWindow &window, int row)
{
    const PlaylistWidget &list = *window.widgets().playlist;
    const QRect rect = list.visualItemRect(list.item(row));
    const QPoint corner = list.viewport()->mapToGlobal(rect.topLeft());
    window.logFileOnly(u"[driver] place %1 %2 %3 %4 %5"_s.arg(row)
                           .arg(corner.x())
                           .arg(corner.y())
                           .arg(rect.width())
                           .arg(rect.height()));
}

void tellRows(PlayerGuiWindow &window, const QString &name)
{
    QStringList files;
    for (const PlaylistEntry &entry : window.widgets().playlist->entries())
        files.append(entry.text);
    window.logFileOnly(u"[driver] rows %1 %2"_s.arg(name, files.join(u' ')));
}

void obey(PlayerGuiWindow &window, const QString &line)
{
    const QString word = line.section(u' ', 0, 0);
    const QString operand = line.section(u' ', 1);
    if (word == "start"_L1)
        window.startPlayback(operand.toInt());
    else if (word == "next"_L1)
        window.stepRow(1);
    else if (word == "stop"_L1)
        window.stopPlayback();
    else if (word == "pause"_L1)
        window.togglePause();
    else if (word == "order"_L1)
        window.setOrderAxis(operand.toInt());
    else if (word == "repeat"_L1)
        window.setRepeatAxis(operand.toInt());
    else if (word == "device"_L1)
        chooseDevice(window.widgets().device, operand);
    else if (word == "state"_L1)
        tellState(window, operand);
    else if (word == "show"_L1)
        window.show();
    else if (word == "place"_L1)
        tellPlace(window, operand.toInt());
    else if (word == "rows"_L1)
        tellRows(window, operand);
    else if (word == "quit"_L1)
        QCoreApplication::quit();
    else
        window.logFileOnly(u"[driver] unknown command: "_s + line);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    applySettingsDirOverride();
    PlayerGuiWindow window({.asksBeforeClosing = false});
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &window, &PlayerGuiWindow::shutdown);
    window.addPaths(QCoreApplication::arguments().mid(1));

    QSocketNotifier commands(STDIN_FILENO, QSocketNotifier::Read);
    QByteArray pending;
    QObject::connect(&commands, &QSocketNotifier::activated, &window, [&] {
        char buffer[4096];
        const ssize_t count = read(STDIN_FILENO, buffer, sizeof buffer);
        if (count <= 0)
            return QCoreApplication::quit();
        pending.append(buffer, count);
        for (qsizetype end = pending.indexOf('\n'); end >= 0; end = pending.indexOf('\n')) {
            const QString line = QString::fromUtf8(pending.first(end));
            pending.remove(0, end + 1);
            obey(window, line);
        }
    });
    return QApplication::exec();
}
