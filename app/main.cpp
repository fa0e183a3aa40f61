// Two roles: with a first argument that begins with a dash a console front of the engine, else the window.
#include "app/first_letters.h"
#include "app/heartbeat.h"
#include "app/hook_timers.h"
#include "app/self_check.h"
#include "app/settings_store.h"
#include "app/startup.h"
#include "platform/console_streams.h"
#include "platform/font_warm_up.h"
#include "platform/letter_weight.h"
#include "platform/memory_layout.h"
#include "ui/first_fonts.h"
#include "ui/window/player_gui_window.h"

#include <QApplication>
#include <optional>
#include <vector>

namespace {

/// The toolkit takes arguments of its own out of the vector that it is given, and the engine has to see all
/// of them: the toolkit gets a copy. A console needs no display.
std::vector<char *> toolkitArguments(int argc, char **argv, bool console)
{
    static char platformFlag[] = "-platform";
    static char noDisplay[] = "offscreen";
    if (!console)
        return {argv, argv + argc};
    return {argv[0], platformFlag, noDisplay};
}

QStringList ownArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int runWindow(const QStringList &arguments)
{
    if (!startup::takeSingleInstanceGuard())
        return 0;
    startup::setPaletteAndIdentity();
    const LanguageChoice language = startup::installTranslator();
    startup::setWindowIcon();

    const HookPlan hooks = parseHooks(processHookEnvironment());
    WindowOptions options;
    options.asksBeforeClosing = !hooks.endsProgram();
    PlayerGuiWindow window(options);
    startup::addAboutBlock(window);
    startup::showWindow(window);
    startup::startServices(window);
    startup::watchTermination(window);
    startup::startHeartbeat();
    startup::startStackWatch();
    takeHookScreenshot(window, hooks);
    startup::startUpdateCheck(window);
    startup::playCommandLineFile(window, arguments);
    armHooks(window, hooks);
    if (hooks.smoke)
        runSelfCheck(window, hooks, language);

    const int code = QApplication::exec();
    heartbeat::setEventLoopLeft();
    return code;
}

} // namespace

int main(int argc, char **argv)
{
    keepMemoryTogether();
    ensureStandardStreams();
    const QStringList arguments = ownArguments(argc, argv);
    const bool console = startup::isConsoleRole(arguments);
    if (!console) {
        warmUpFonts(firstFonts());
        drawLettersAtTheirWeight();
    }
    std::vector<char *> toolkit = toolkitArguments(argc, argv, console);
    int toolkitCount = static_cast<int>(toolkit.size());
    toolkit.push_back(nullptr);

    const QApplication application(toolkitCount, toolkit.data());
    std::optional<startup::FirstLetters> letters;
    if (!console) {
        letters.emplace();
        startup::layOutHeap();
    }
    applySettingsDirOverride();
    startup::sweepLogs();
    return console ? startup::runConsoleRole(argc, argv) : runWindow(arguments);
}
