/// \file
/// Showing a file in the user's file manager.
#pragma once

#include <QStringList>
#include <functional>

class QObject;

/// Asks the session bus for a file manager (org.freedesktop.FileManager1) that shows the files and marks
/// them. Does not wait: \p refused is called in the thread of \p context when no file manager has taken the
/// request.
void showInFileManager(const QStringList &paths, QObject *context, std::function<void()> refused);
