// What the window shows of the track: where in it we are.
#include "ui/window/player_gui_window.h"

#include "ui/cover_disc.h"
#include "ui/display_panel.h"
#include "ui/dock_bar.h"
#include "ui/progress_dial.h"
#include "ui/progress_row.h"
#include "ui/stage.h"

using namespace Qt::StringLiterals;

void PlayerGuiWindow::showPlace(int barValue)
{
    const double fraction = static_cast<double>(barValue) / progressBarMaximum;
    // The length is known a moment later than the position.
    if (const double totalSec = m_progress.lastTotalSec; totalSec > 0.)
        m_ui.progress->dial->showPosition(fraction * totalSec, totalSec);
    else
        m_ui.progress->dial->showFraction(fraction);
    m_ui.stage->disc->showPosition(fraction);
}

void PlayerGuiWindow::showIdle()
{
    const QString invitation = tr("选择曲目或导入音频");
    m_ui.display->showTrack({u"TRACK --"_s, u"AUDIO"_s, u"NO DISC"_s, invitation, {}});
    m_ui.dock->showTrack(u"NO DISC"_s, invitation);
}
