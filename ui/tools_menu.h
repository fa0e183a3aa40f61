/// \file
/// The menu behind the dock's tools button.
#pragma once

#include <QList>
#include <QMenu>

/// In the order in which the menu shows them.
enum class Tool
{
    ScanLibrary,
    FindDuplicates,
    BatchTagEdit,
    SmartPlaylists,
    YearReport,
    TrackAnalysis,
    DspOrder,
    FingerprintCompare,
    OnlineTagFill,
    NetworkLibrary,
    PhoneSync,
    Plugins,
    Stations,
    CarMode,
    NetworkMounts,
    VerifyLibrary,
    ClearLog,
    Help
};

/// A tool that does not exist yet stands in its place, disabled, and says so.
class ToolsMenu final : public QMenu
{
    Q_OBJECT

public:
    /// \param available the tools that do something
    explicit ToolsMenu(const QList<Tool> &available, QWidget *parent = nullptr);

Q_SIGNALS:
    void chosen(Tool tool);
};
