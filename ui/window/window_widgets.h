/// \file
/// The widgets that several topics touch. All are children of the window.
#pragma once

class ChainPanel;
class DisplayPanel;
class DockBar;
class DspBar;
class EngineControls;
class InstrumentPanel;
class LibraryPanel;
class LogPane;
class LookControls;
class PlaylistWidget;
class ProgressRow;
class RemoteControls;
class QComboBox;
class QLabel;
class QPushButton;
class QToolButton;
class QWidget;
class SetupDialog;
class SleepControls;
class Stage;
class TitleBar;

struct WindowWidgets
{
    TitleBar *title = nullptr;
    LibraryPanel *library = nullptr;
    PlaylistWidget *playlist = nullptr;
    QWidget *centre = nullptr;
    Stage *stage = nullptr;
    DisplayPanel *display = nullptr;
    InstrumentPanel *instruments = nullptr;
    QLabel *lyrics = nullptr;
    QWidget *side = nullptr; ///< the right column
    ChainPanel *chain = nullptr;
    QComboBox *device = nullptr; ///< the primary device
    QPushButton *refreshDevices = nullptr;
    QPushButton *selfCheck = nullptr;
    QPushButton *report = nullptr;
    DockBar *dock = nullptr;
    DspBar *dsp = nullptr;
    ProgressRow *progress = nullptr;
    QLabel *message = nullptr; ///< the status line's text
    QToolButton *logSwitch = nullptr;
    // Null until they are first opened.
    LogPane *log = nullptr;
    SetupDialog *setup = nullptr;
    EngineControls *engine = nullptr;
    LookControls *look = nullptr;
    SleepControls *sleep = nullptr;
    RemoteControls *remote = nullptr;
};
