// The one switch that cuts everything that talks to a network.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"

bool PlayerGuiWindow::offlineAllows(const QString &label)
{
    if (!readUserSetting(settings::offlineMode))
        return true;
    logLine(tr("离线模式已打开：拒绝了 %1（可在设置里关闭离线模式）").arg(label), true);
    return false;
}
