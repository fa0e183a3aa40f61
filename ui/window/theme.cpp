// The look: which one, in which accent, and when it changes.
#include "ui/window/player_gui_window.h"

#include "app/settings_store.h"
#include "platform/settings_table.h"
#include "platform/system_scheme.h"
#include "playback/playlist_delegate.h"
#include "playback/playlist_widget.h"
#include "playback/self_check_dialog.h"
#include "ui/cover_accent.h"
#include "ui/style_sheet.h"
#include "ui/theme.h"

#include <QApplication>

using namespace Qt::StringLiterals;

namespace {

enum ThemeChoice
{
    darkTheme,
    lightTheme,
    systemTheme,
};

/// Widgets that have not been shown yet ask their style all they want to know when they are. Told of a new
/// sheet before, each would have its rules looked up twice.
class UnshownStayQuiet final : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        return event->type() == QEvent::StyleChange && watched->isWidgetType() &&
               !static_cast<QWidget *>(watched)->testAttribute(Qt::WA_WState_Polished);
    }
};

PlaylistColours playlistColours()
{
    PlaylistColours colours;
    colours.text = theme::ink2();
    colours.textRaised = theme::ink1();
    colours.tag = theme::ink4();
    colours.tagRaised = theme::ink3();
    colours.hover = theme::raised();
    colours.selected = theme::raisedHover();
    colours.focus = theme::edge();
    colours.ring = theme::focusRing();
    if (!theme::lightTheme) {
        colours.playingPlate = theme::wash();
        colours.playingHover = theme::strongWash();
        colours.playingSelected = theme::raisedHover();
        colours.playingTag = theme::ink3();
    } else {
        // Amber cannot be read on white: the row is printed in reverse.
        colours.playingPlate = theme::reversedPlate();
        colours.playingHover = theme::reversedPlate().lighter(120);
        colours.playingSelected = theme::reversedPlate();
        colours.playingTag = theme::reversedInk();
    }
    return colours;
}

} // namespace

void PlayerGuiWindow::loadTheme()
{
    theme::reduceMotion = readUserSetting(settings::reduceMotion);
    theme::setAccent(QColor(readUserSetting(settings::accent)));
    theme::setLightTheme(wantsLightTheme());
    // Before there are widgets that would each be told.
    if (const QPalette palette = theme::applicationPalette(); palette != QApplication::palette())
        QApplication::setPalette(palette);
}

bool PlayerGuiWindow::wantsLightTheme()
{
    const int choice = readUserSetting(settings::theme);
    if (choice != systemTheme)
        return choice == ThemeChoice::lightTheme;
    if (!m_systemScheme) {
        m_systemScheme = new SystemScheme(this);
        // The desktop answers when it likes, and tells every change.
        connect(m_systemScheme, &SystemScheme::changed, this, [this] {
            if (theme::lightTheme != wantsLightTheme())
                changeTheme();
        });
    }
    return m_systemScheme->prefersLight();
}

void PlayerGuiWindow::applyTheme()
{
    const QPalette palette = theme::applicationPalette();
    if (palette != QApplication::palette())
        QApplication::setPalette(palette);
    if (const QString sheet = styleSheetInForce(); sheet != styleSheet()) {
        UnshownStayQuiet quiet;
        qApp->installEventFilter(&quiet);
        setStyleSheet(sheet);
    }
    if (auto *rows = qobject_cast<PlaylistDelegate *>(m_ui.playlist->itemDelegate()))
        rows->setColours(playlistColours());
    colourSelfCheck();
    Q_EMIT ThemeNotifier::instance().changed();
}

void PlayerGuiWindow::colourSelfCheck()
{
    if (!m_chain.verifyDialog)
        return;
    SelfCheckColors colours;
    // The verdict's colours are fixed and cannot be read on white.
    if (theme::lightTheme)
        colours.plate = theme::reversedPlate();
    m_chain.verifyDialog->setColors(colours);
}

void PlayerGuiWindow::changeTheme()
{
    theme::reduceMotion = readUserSetting(settings::reduceMotion);
    theme::setLightTheme(wantsLightTheme());
    applyTheme();
    const QString look = theme::lightTheme ? tr("浅色") : tr("深色");
    const bool follows = readUserSetting(settings::theme) == systemTheme;
    logLine(tr("主题: %1").arg(follows ? tr("跟随系统（%1）").arg(look) : look));
}

void PlayerGuiWindow::loadUserAccent()
{
    const QColor stored(readUserSetting(settings::accent));
    const QColor accent = stored.isValid() ? stored : QColor(theme::defaultAccent);
    if (accent == theme::chosenAccent())
        return;
    theme::setAccent(accent);
    applyTheme();
}

void PlayerGuiWindow::useCoverAccent(const QPixmap &cover)
{
    if (cover.isNull() || !readUserSetting(settings::coverAccent)) {
        loadUserAccent();
        return;
    }
    bool found = false;
    const QColor accent = coverDominantColor(cover, &found);
    if (!found) {
        logLine(tr("封面没有可用的主色（纯黑/灰/白）⇒ 强调色保持为你选的颜色"));
        loadUserAccent();
        return;
    }
    if (accent != theme::chosenAccent()) {
        theme::setAccent(accent);
        applyTheme();
    }
    logLine(tr("强调色跟随封面: %1").arg(accent.name().toUpper()));
}

void PlayerGuiWindow::setThemeIndex(int index)
{
    writeUserSetting(settings::theme, index);
    changeTheme();
    showLook();
}
