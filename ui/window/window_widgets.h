/// \file
/// The widgets that several topics touch. All are children of the window.
#pragma once

class DisplayPanel;
class DockBar;
class EngineControls;
class LogPane;
class PlaylistWidget;
class ProgressRow;
class RemoteControls;
class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;

struct WindowWidgets
{
    PlaylistWidget *playlist = nullptr;
    QLabel *playlistCount = nullptr;
    QPushButton *importFiles = nullptr;
    QPushButton *analyze = nullptr;
    DisplayPanel *display = nullptr;
    DockBar *dock = nullptr;
    ProgressRow *progress = nullptr;
    EngineControls *engine = nullptr;
    RemoteControls *remote = nullptr;
    QComboBox *device = nullptr; ///< the primary device
    QPushButton *refreshDevices = nullptr;
    QLabel *sourceInfo = nullptr;
    QLabel *message = nullptr; ///< the status line's text
    QToolButton *logSwitch = nullptr;
    QToolButton *engineSwitch = nullptr;
    LogPane *log = nullptr; ///< null until the layout stands: lines go to the file alone
};
