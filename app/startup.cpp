#include "app/startup.h"

#include "app/about_block.h"
#include "app/guard_trace.h"
#include "app/gui_log_file.h"
#include "app/heartbeat.h"
#include "app/language_install.h"
#include "app/session_log_sweep.h"
#include "engine/engine_library.h"
#include "platform/head_start.h"
#include "platform/memory_layout.h"
#include "platform/single_instance.h"
#include "platform/termination_signals.h"
#include "playback/playlist_widget.h"
#include "ui/program_icon.h"
#include "ui/style_sheet.h"
#include "ui/theme.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <QBackingStore>
#include <QDebug>
#include <QFileInfo>
#include <QImage>
#include <QMessageBox>
#include <QTimer>

#include <chrono>
#include <cstdio>
#include <system_error>
#include <thread>

using namespace Qt::StringLiterals;

namespace startup {

namespace {

constexpr int couldNotRunEngine = 127;

QString refusalText()
{
    return QCoreApplication::translate("Startup", "[gui] 已经有另一个 KelpPlayer 在运行 —— 本次不启动\n\n"
                                                  "再开一个会在同一台设备上叠加播放（听感就是噪声/重叠）。\n"
                                                  "要故意多开请设 KELP_GUI_ALLOW_MULTI=1");
}

void refuse()
{
    const QString warning =
        u"another KelpPlayer is already running -- refusing to start a second instance: several instances "
        u"would "
        "play on top of each other on the same device (the user hears that as noise/overlap). Set "
        "KELP_GUI_ALLOW_MULTI=1 to allow it."_s;
    GuiLogFile::ofProcess().write(warning);
    qWarning().noquote() << warning;
    // This process ends here, so its identity and language may be set early: the refusal is read by a person.
    setPaletteAndIdentity();
    installTranslator();
    QMessageBox::information(nullptr, u"KelpPlayer"_s, refusalText(), QMessageBox::Ok);
}

/// Tells a step that has been done, for whoever looks into the order of the start with KELP_GUI_STEPS.
void traceStep(const QString &step)
{
    if (!qEnvironmentVariableIsSet("KELP_GUI_STEPS"))
        return;
    std::fprintf(stderr, "[gui] KELP_GUI_STEPS: %s\n", qUtf8Printable(step));
    std::fflush(stderr);
}

void giveIcon(const QList<QSize> &sizes)
{
    QApplication::setWindowIcon(programIcon(u":/icons/kelp.png"_s, sizes));
}

void preloadEngine()
{
    kelp::EngineLibrary *library = &kelp::EngineLibrary::ofProgram();
    std::thread([library] { library->preload(); }).detach();
}

/// The engine's library draws in dozens of others, and so is loaded before the first track has to wait for
/// it; but they are a third of the program's memory, and with an empty list there is nothing to play.
void preloadForRows(const QListWidget &list)
{
    if (list.count() > 0)
        preloadEngine();
    else
        QObject::connect(list.model(), &QAbstractItemModel::rowsInserted, qApp, preloadEngine,
                         Qt::SingleShotConnection);
}

/// Without a thread, whoever touches a page first does it, page by page.
void layOutBeside(MemoryPart part)
{
    (void)runBeside(WorkRank::InTime, [part] { layOutMemory(part); });
}

/// Has the memory of the window's first picture laid out while the widgets find their places.
void layOutCanvas(QWidget &window)
{
    window.winId(); // makes the window of the system, and the canvas with it
    QBackingStore *store = window.backingStore();
    if (!store)
        return;
    store->resize(window.size());
    const QPaintDevice *device = store->paintDevice();
    if (!device || device->devType() != QInternal::Image)
        return;
    const auto *picture = static_cast<const QImage *>(device);
    layOutBeside({reinterpret_cast<std::uintptr_t>(picture->constBits()),
                  static_cast<std::size_t>(picture->sizeInBytes())});
}

} // namespace

bool isConsoleRole(const QStringList &arguments)
{
    return arguments.size() >= 2 && arguments.at(1).startsWith(u'-');
}

int runConsoleRole(int argc, char **argv)
{
    kelp::EngineLibrary &library = kelp::EngineLibrary::ofProgram();
    const auto entry = library.mainEntry();
    if (!entry) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(library.errorText()));
        return couldNotRunEngine;
    }
    return entry(argc, argv);
}

void layOutHeap()
{
    constexpr std::size_t ofTheWindow = 3584UL * 1024;
    MemoryPart heap = spareHeap();
    heap.bytes = std::min(heap.bytes, ofTheWindow);
    layOutBeside(heap);
}

void sweepLogs()
{
    if (const QString line = sweepSessionLogs(); !line.isEmpty())
        qInfo().noquote() << line;
}

bool takeSingleInstanceGuard()
{
    const SingleInstanceResult guard = takeSingleInstance(singleInstanceDirectory());
    guardTrace("pid=%lu mutex=%p GetLastError=%lu (183=ALREADY_EXISTS) session=%lu",
               static_cast<unsigned long>(QCoreApplication::applicationPid()),
               reinterpret_cast<void *>(static_cast<std::intptr_t>(guard.descriptor)), guard.lastError,
               processSessionId());
    if (!guard.heldByOther() || !qEnvironmentVariableIsEmpty("KELP_GUI_ALLOW_MULTI"))
        return true;
    refuse();
    return false;
}

void setPaletteAndIdentity()
{
    // The look's own from the first widget on: one that gave way to it would have every widget told twice.
    QApplication::setPalette(theme::applicationPalette());
    QApplication::setStyle(u"Fusion"_s);
    // The application's, so that dialogs have it too, and before any widget could take another.
    QApplication::setFont(interfaceFont());
    QCoreApplication::setApplicationName(u"KelpPlayer"_s);
    QCoreApplication::setOrganizationName(u"KELP"_s);
    traceStep(u"palette "_s + QApplication::palette().highlight().color().name());
}

LanguageChoice installTranslator()
{
    LanguageChoice choice = chooseLanguage(languageFacts());
    const LanguageInstall installed = installLanguage(choice.code);
    if (!installed.warning.isEmpty()) {
        qWarning().noquote() << installed.warning;
        GuiLogFile::ofProcess().write(installed.warning);
    }
    choice.code = installed.code;
    setFontLanguage(choice.code);
    QApplication::setFont(interfaceFont());
    traceStep(u"language "_s + choice.code);
    return choice;
}

void setWindowIcon()
{
    giveIcon({{32, 32}});
    traceStep(u"icon"_s);
}

void addAboutBlock(PlayerGuiWindow &window)
{
    auto *block = new AboutBlock(&window);
    QObject::connect(block, &AboutBlock::updateCheckRequested, &window,
                     [&window] { window.startUpdateCheck(true); });
    traceStep(u"about"_s);
}

void showWindow(PlayerGuiWindow &window)
{
    using namespace std::chrono_literals;
    constexpr auto afterFirstPicture = 300ms;
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, &window, &PlayerGuiWindow::shutdown);
    layOutCanvas(window);
    window.show();
    window.noteShown();
    traceStep(u"shown"_s);
    // Not with the first picture of the window, which need not share the processor; and what is more than the
    // display takes at once, the large icon, twice holds up who sends it.
    QTimer::singleShot(afterFirstPicture, &window, [&window] {
        settleHeap();
        giveIcon({{32, 32}, {128, 128}});
        preloadForRows(*window.widgets().playlist);
    });
}

void startServices(PlayerGuiWindow &window)
{
    window.restoreRemote();
    traceStep(u"services"_s);
}

void watchTermination(PlayerGuiWindow &window)
{
    onTerminationSignal(&window, [&window](int number) {
        window.endOnDemand(QString::fromLatin1(terminationSignalName(number)));
    });
}

void startHeartbeat()
{
    heartbeat::start();
    traceStep(u"heartbeat"_s);
}

void startStackWatch()
{
    if (!qEnvironmentVariableIsSet("KELP_GUI_STACK_WATCH"))
        return;
    heartbeat::startStallSampler();
    traceStep(u"stack watch"_s);
}

void startUpdateCheck(PlayerGuiWindow &window)
{
    if (!qEnvironmentVariableIsEmpty("KELP_NO_UPDATE_CHECK"))
        return;
    window.startUpdateCheck(false);
    traceStep(u"update check"_s);
}

void playCommandLineFile(PlayerGuiWindow &window, const QStringList &arguments)
{
    if (arguments.size() >= 2 && QFileInfo(arguments.at(1)).isFile())
        window.debugAutoplay(arguments.at(1), QString());
}

} // namespace startup
