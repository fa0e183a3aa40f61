/// \file
/// The steps from the process's start to the event loop. main() calls them in their one order; each may rely
/// on those before it.
#pragma once

#include "app/debug_hooks.h"
#include "app/language.h"

#include <QString>
#include <QStringList>

class PlayerGuiWindow;
class QApplication;

namespace startup {

/// Whether the first argument begins with a dash: then the program is a console front of the engine.
bool isConsoleRole(const QStringList &arguments);
/// Calls the engine's entry with the process's own arguments; its result is the exit code.
int runConsoleRole(int argc, char **argv);

/// Has the memory laid out that the window's objects will take.
void layOutHeap();
void sweepLogs();
/// False when another window runs: then the listener has been told, and the program ends.
bool takeSingleInstanceGuard();
void setPaletteAndIdentity();
LanguageChoice installTranslator();
void setWindowIcon();
void addAboutBlock(PlayerGuiWindow &window);
void showWindow(PlayerGuiWindow &window);
/// What is switched on by the stored choices and serves others.
void startServices(PlayerGuiWindow &window);
/// A signal that asks the program to end closes it as the listener would, without a question.
void watchTermination(PlayerGuiWindow &window);
void startHeartbeat();
void startStackWatch();
void startUpdateCheck(PlayerGuiWindow &window);
void playCommandLineFile(PlayerGuiWindow &window, const QStringList &arguments);

} // namespace startup
