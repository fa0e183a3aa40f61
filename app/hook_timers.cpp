#include "app/hook_timers.h"

#include "output/engine_controls.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTimer>

#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

constexpr int quitDelayMs = 2500;
constexpr int rigDumpQuitMs = 300;
constexpr int autoCloseLookMs = 200;
constexpr int shotRounds = 40;
constexpr int shotRoundMs = 50;

/// Hooks speak on stderr and at once: whoever armed them is waiting for the line.
void say(const QString &line)
{
    std::fprintf(stderr, "%s\n", qUtf8Printable(line));
    std::fflush(stderr);
}

void after(PlayerGuiWindow &window, double ms, const std::function<void()> &action)
{
    QTimer::singleShot(std::chrono::milliseconds(static_cast<qint64>(ms)), &window, action);
}

void invokeQueued(PlayerGuiWindow &window, const char *slot)
{
    QMetaObject::invokeMethod(&window, slot, Qt::QueuedConnection);
}

void armAutoplay(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.autoplay)
        return;
    say(u"[gui] KELP_GUI_AUTOPLAY: %1"_s.arg(plan.autoplay->path));
    QMetaObject::invokeMethod(&window, "debugAutoplay", Q_ARG(QString, plan.autoplay->path),
                              Q_ARG(QString, plan.autoplay->device));
}

void armJump(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.jumpAt)
        return;
    after(window, plan.jumpAt->afterSec * 1000., [&window, row = plan.jumpAt->row] {
        say(u"[gui] KELP_GUI_JUMP_AT: %1"_s.arg(row));
        QMetaObject::invokeMethod(&window, "jumpToRow", Q_ARG(int, row));
    });
}

void armNextEvery(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.nextEvery)
        return;
    for (int round = 1; round <= plan.nextEvery->count; ++round) {
        after(window, plan.nextEvery->everySec * 1000. * round, [&window] {
            say(u"[gui] KELP_GUI_NEXT_EVERY: 触发下一首"_s);
            invokeQueued(window, "debugNext");
        });
    }
}

void armNextAfter(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.nextAfterSec <= 0.)
        return;
    after(window, plan.nextAfterSec * 1000., [&window] {
        say(u"[gui] KELP_GUI_NEXT_AFTER: 触发下一首"_s);
        invokeQueued(window, "debugNext");
    });
}

void armQuitAfter(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.quitAfterSec <= 0.)
        return;
    after(window, plan.quitAfterSec * 1000., [&window] {
        say(u"[gui] KELP_GUI_QUIT_AFTER: 停止并退出"_s);
        window.stopPlayback();
        QTimer::singleShot(quitDelayMs, qApp, &QCoreApplication::quit);
    });
}

void armStopAfter(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.stopAfterSec <= 0.)
        return;
    after(window, plan.stopAfterSec * 1000., [&window] {
        say(u"[gui] KELP_GUI_STOP_AFTER: 触发停止"_s);
        invokeQueued(window, "debugStop");
    });
}

void armCheckAfter(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.checkAfterSec <= 0.)
        return;
    after(window, plan.checkAfterSec * 1000., [&window] {
        say(u"[gui] KELP_GUI_CHECK_AFTER: 位完美自检"_s);
        window.startBitPerfectCheck();
    });
}

void armMoveRow(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.badMoveRow.isEmpty())
        say(u"KELP_GUI_MOVEROW bad spec='%1' (want from:to)"_s.arg(plan.badMoveRow));
    if (!plan.moveRow)
        return;
    const bool moved = window.moveRow(plan.moveRow->from, plan.moveRow->to);
    say(u"[gui] KELP_GUI_MOVEROW: %1 -> %2 %3"_s.arg(plan.moveRow->from)
            .arg(plan.moveRow->to)
            .arg(moved ? u"ok"_s : u"refused"_s));
}

void armAutostop(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.autostopMs <= 0.)
        return;
    after(window, plan.autostopMs, [&window] {
        say(u"[gui] KELP_GUI_AUTOSTOP"_s);
        if (window.sessionRuns())
            window.stopPlayback();
    });
}

void armRigDump(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.rigDump)
        return;
    QComboBox *rig = window.widgets().engine->rig;
    if (const int row = plan.rigDumpValue.isEmpty() ? -1 : rig->findData(plan.rigDumpValue); row >= 0)
        rig->setCurrentIndex(row);
    say(u"[gui] KELP_GUI_RIGDUMP: %1"_s.arg(rig->currentText()));
    window.runRigReport();
    QTimer::singleShot(rigDumpQuitMs, qApp, &QCoreApplication::quit);
}

void armAutoClose(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (!plan.autoClose)
        return;
    auto *timer = new QTimer(&window);
    QObject::connect(timer, &QTimer::timeout, &window, [&window, timer] {
        if (!window.sessionRuns() || !window.trackAnnounced())
            return;
        timer->stop();
        say(u"[gui] AUTOCLOSE: 自动关窗"_s);
        window.logLine(QCoreApplication::translate("DebugHooks", "测试钩子: 自动关窗 (等价点右上角关闭)"));
        window.close();
    });
    timer->start(autoCloseLookMs);
}

void saveScreenshot(PlayerGuiWindow &window, const QString &path)
{
    const bool saved = window.grab().save(path);
    std::fprintf(stderr, "[shot] %s -> %s (visible=%d %dx%d)\n", qUtf8Printable(path),
                 saved ? "saved" : "FAILED", window.isVisible() ? 1 : 0, window.width(), window.height());
    std::fflush(stderr);
}

} // namespace

void takeHookScreenshot(PlayerGuiWindow &window, const HookPlan &plan)
{
    if (plan.shotPath.isEmpty())
        return;
    if (plan.shotAfterSec > 0.) {
        after(window, plan.shotAfterSec * 1000.,
              [&window, path = plan.shotPath] { saveScreenshot(window, path); });
        return;
    }
    for (int round = 0; round < shotRounds; ++round) {
        QElapsedTimer clock;
        clock.start();
        while (clock.elapsed() < shotRoundMs)
            QCoreApplication::processEvents(QEventLoop::AllEvents, shotRoundMs);
        if (window.isVisible() && window.width() > 1 && window.height() > 1)
            break;
    }
    saveScreenshot(window, plan.shotPath);
}

void armHooks(PlayerGuiWindow &window, const HookPlan &plan)
{
    using Arm = void (*)(PlayerGuiWindow &, const HookPlan &);
    static constexpr std::array<Arm, 11> table = {armAutoplay,  armJump,      armNextEvery,  armNextAfter,
                                                  armQuitAfter, armStopAfter, armCheckAfter, armMoveRow,
                                                  armAutostop,  armRigDump,   armAutoClose};
    for (const Arm arm : table)
        arm(window, plan);
}
