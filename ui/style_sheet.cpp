#include "ui/style_sheet.h"

#include "ui/light_look.h"
#include "ui/style_rules.h"
#include "ui/theme.h"
#include "ui/type_families.h"

#include <QtPlugin>

using namespace Qt::StringLiterals;

// It draws what the sheet below names as pictures.
Q_IMPORT_PLUGIN(KelpGlyphPlugin)

namespace {

QString eastAsianFamily = u"Noto Sans CJK SC"_s;
/// Whether the interface's language has capitals to engrave.
bool engravesCaptions = true;

// Areas and text. Fonts are the widgets' own, so that a sheet costs no matching of families.
constexpr auto surfaces = R"(
QLabel { color: #CFC9BF; }
QLabel:disabled { color: #4A4842; }
QMainWindow, QDialog, QWidget#vesperRoot { background: #131317; }
QFrame#vesperTitleBar, QFrame#vesperDock {
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #18181E, stop:1 #131317); border: none; }
QFrame#vesperTitleBar { border-bottom: 1px solid #23232B; }
QFrame#vesperDock, QFrame#vesperProg, QFrame#vesperDspBar { border: none; border-top: 1px solid #23232B; }
QFrame#vesperPanel { background: #131317; border: none; border-right: 1px solid #23232B; }
QFrame#vesperPanel[mirrored="true"] { border-right: none; border-left: 1px solid #23232B; }
QFrame#vesperSide, QFrame#vesperChainBox { background: #131317; border: none;
    border-left: 1px solid #23232B; }
QFrame#vesperSide[mirrored="true"] { border-left: none; border-right: 1px solid #23232B; }
QFrame#vesperStatusLine { background: #0C0C0F; border: none; border-top: 1px solid #23232B; }
QFrame#vesperCard { background: #18181E; border: 1px solid #23232B; border-radius: 6px; }
QFrame#vesperRule, QFrame#vesperVfdLine { background: #23232B; border: none; }
QFrame#vesperVfd { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #08080A, stop:1 #0C0C0F);
    border: 1px solid #2C2C35; border-radius: 6px; }
QLabel#vesperWinTitle { font-size: 13px; }
QLabel#vesperPanelTitle, QLabel#vesperPanelMeta, QLabel#vesperCardKey, QLabel#vesperModel, QLabel#vesperCaption,
QLabel#vesperBayLabel, QLabel#vesperInd, QLabel#vesperVfdMeta { color: #8A857C; }
QLabel#vesperIndOn { color: @ink@; }
QLabel#vesperClock, QLabel#vesperCardVal, QLabel#vesperVfdStatus { color: #EDEAE3; }
QLabel#vesperVfdFormat { border: 1px solid #2C2C35; border-radius: 3px; padding: 1px 8px; }
QLabel#vesperVfdTitle, QLabel#vesperNowTitle { color: #EDEAE3; font-weight: 600; }
QLabel#vesperVfdArtist { font-size: 15px; }
QLabel#vesperVfdTime { color: #8A857C; }
QLabel#vesperVfdMeta[sounding="true"], QLabel#vesperVfdTime[sounding="true"] { color: @ink@; }
QLabel#vesperNowTitle { font-size: 14px; }
QLabel#vesperNowArtist, QLabel#vesperMessage { color: #B9B3A8; }
)"_L1;

// Buttons in all their states.
constexpr auto buttons = R"(
QPushButton { background: #18181E; border: 1px solid #2C2C35; border-radius: 4px; color: #CFC9BF;
    min-height: 28px; padding: 0 12px; }
QPushButton:hover { background: #1F1F26; color: #EDEAE3; }
QPushButton:pressed { background: #0C0C0F; color: #EDEAE3; }
QPushButton:checked, QPushButton:default, QPushButton[primary="true"] { background: @wash@;
    border-color: @accent@; color: @ink@; font-weight: 600; }
QPushButton:checked:hover, QPushButton:default:hover, QPushButton[primary="true"]:hover { background: @strong@; }
QPushButton:default:pressed, QPushButton[primary="true"]:pressed { background: @ink@; color: #08080A; }
QPushButton:disabled { background: #131317; border-color: #23232B; color: #4A4842; font-weight: 400; }
QPushButton[pad="9"] { padding: 0 9px; }
QPushButton[pad="5"] { padding: 0 5px; }
QPushButton[keyFocus="true"] { border: 2px solid @ring@; padding: 0 11px; min-height: 26px; }
QPushButton[pad="9"][keyFocus="true"] { padding: 0 8px; }
QPushButton[pad="5"][keyFocus="true"] { padding: 0 4px; }
IconButton, DspTab { background: transparent; border: none; min-height: 0; padding: 0; }
QPushButton#vesperMinor { background: transparent; border-color: transparent; color: #B9B3A8; }
QPushButton#vesperMinor:hover { background: #18181E; color: #EDEAE3; }
QPushButton#vesperMinor:pressed { background: #0C0C0F; }
QPushButton#vesperMinor:disabled { color: #4A4842; }
QPushButton#vesperMinor[keyFocus="true"], QPushButton#vesperBrand[keyFocus="true"],
QPushButton#vesperChip[keyFocus="true"], QPushButton#vesperSwitch[keyFocus="true"] { border-color: @ring@; }
QPushButton#vesperBrand, QLabel#vesperBrand { background: #08080A; border: 1px solid #2C2C35;
    border-radius: 4px; color: @ink@; font-weight: 600; min-height: 26px; padding: 0 12px; }
QPushButton#vesperBrand:hover { border-color: @accent@; }
QPushButton#vesperBrand[keyFocus="true"] { border: 2px solid @ring@; min-height: 24px; padding: 0 11px; }
QPushButton#vesperChip { background: #0C0C0F; border: 1px solid #2C2C35; border-radius: 0; color: #B9B3A8;
    min-height: 26px; padding: 0 8px; }
QPushButton#vesperChip[place="middle"], QPushButton#vesperChip[place="last"] { border-left: none; }
QPushButton#vesperChip[place="first"] { border-top-left-radius: 4px; border-bottom-left-radius: 4px; }
QPushButton#vesperChip[place="last"] { border-top-right-radius: 4px; border-bottom-right-radius: 4px; }
QPushButton#vesperChip:hover { background: #18181E; color: #EDEAE3; }
QPushButton#vesperChip:checked { background: #1F1F26; color: #EDEAE3; font-weight: 600; }
QPushButton#vesperChip[keyFocus="true"] { border: 2px solid @ring@; min-height: 24px; padding: 0 7px; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; color: #B9B3A8;
    padding: 0; }
QToolButton:hover { background: #1F1F26; color: #EDEAE3; }
QToolButton:pressed { background: #0C0C0F; }
QToolButton:disabled { color: #4A4842; }
QToolButton[keyFocus="true"] { border: 2px solid @ring@; }
QToolButton#vesperPlay { background: @wash@; border: 1px solid @accent@; border-radius: 19px; }
QToolButton#vesperPlay:hover { background: @strong@; border-color: @ring@; }
QToolButton#vesperPlay:disabled { background: transparent; border-color: #23232B; }
QToolButton#vesperPlay[keyFocus="true"] { border: 2px solid @ring@; }
QToolButton#vesperSwitch { padding: 0 8px; }
QToolButton#vesperSwitch:checked { color: #EDEAE3; }
)"_L1;

// Fields, switches and sliders. A picture costs the loading of all image plug-ins where it first shows, so
// the window itself has none: its combos draw their arrows.
constexpr auto fields = R"(
QComboBox, QLineEdit, QAbstractSpinBox { background: #18181E; border: 1px solid #2C2C35; border-radius: 4px;
    color: #CFC9BF; min-height: 28px; padding: 0 10px; selection-background-color: @ink@;
    selection-color: #08080A; }
QLineEdit { background: #0C0C0F; min-height: 30px; }
QComboBox:hover, QLineEdit:hover, QAbstractSpinBox:hover { background: #1F1F26; color: #EDEAE3; }
QLineEdit:focus { color: #EDEAE3; }
QComboBox:on { background: #0C0C0F; border-color: @accent@; }
QComboBox:disabled, QLineEdit:disabled, QAbstractSpinBox:disabled { background: #131317; border-color: #23232B;
    color: #4A4842; }
QLineEdit#vesperSearch:disabled { color: #B9B3A8; }
QLineEdit:read-only { background: transparent; border-color: transparent; }
QComboBox[keyFocus="true"], QAbstractSpinBox[keyFocus="true"] { border: 2px solid @ring@; min-height: 26px;
    padding: 0 9px; }
QLineEdit[keyFocus="true"] { border: 2px solid @ring@; min-height: 28px; padding: 0 9px; }
QComboBox QLineEdit, QAbstractSpinBox QLineEdit { background: transparent; border: none; min-height: 0; padding: 0; }
QComboBox::drop-down { border: none; width: 28px; }
QDialog QComboBox::down-arrow { image: url(down-ink.kelpglyph); width: 16px; height: 16px; }
QDialog QComboBox::down-arrow:disabled { image: url(down-off.kelpglyph); }
QAbstractSpinBox::up-button, QAbstractSpinBox::down-button { border: none; width: 20px; background: transparent; }
QAbstractSpinBox::up-arrow { image: url(up-ink.kelpglyph); width: 12px; height: 12px; }
QAbstractSpinBox::down-arrow { image: url(down-ink.kelpglyph); width: 12px; height: 12px; }
QAbstractSpinBox::up-arrow:disabled, QAbstractSpinBox::up-arrow:off { image: url(up-off.kelpglyph); }
QAbstractSpinBox::down-arrow:disabled, QAbstractSpinBox::down-arrow:off { image: url(down-off.kelpglyph); }
QCheckBox, QRadioButton { color: #CFC9BF; spacing: 8px; min-height: 20px; }
QCheckBox:disabled, QRadioButton:disabled { color: #4A4842; }
QCheckBox::indicator, QGroupBox::indicator { width: 18px; height: 18px; border: 1px solid #4A4842;
    border-radius: 4px; background: #0C0C0F; }
QRadioButton::indicator { width: 16px; height: 16px; border: 1px solid #4A4842; border-radius: 9px;
    background: #0C0C0F; }
QCheckBox::indicator:hover, QRadioButton::indicator:hover { border-color: #B9B3A8; background: #1F1F26; }
QCheckBox::indicator:pressed { background: #0C0C0F; }
QCheckBox::indicator:checked, QGroupBox::indicator:checked { background: @ink@; border-color: @ink@;
    image: url(tick-glass.kelpglyph); }
QCheckBox::indicator:indeterminate { background: @ink@; border-color: @ink@; image: url(dash-glass.kelpglyph); }
QRadioButton::indicator:checked { background: qradialgradient(cx:0.5, cy:0.5, radius:0.5, fx:0.5, fy:0.5,
    stop:0 @ink@, stop:0.5 @ink@, stop:0.6 #0C0C0F, stop:1 #0C0C0F); border-color: @ink@; }
QCheckBox::indicator:disabled, QRadioButton::indicator:disabled { background: #131317; border-color: #23232B; }
QCheckBox::indicator:checked:disabled { background: #131317; border-color: #23232B;
    image: url(tick-off.kelpglyph); }
QCheckBox[keyFocus="true"]::indicator { border: 2px solid @ring@; width: 16px; height: 16px; }
QRadioButton[keyFocus="true"]::indicator { border: 2px solid @ring@; width: 14px; height: 14px; }
QGroupBox { border: 1px solid #23232B; border-radius: 6px; margin-top: 16px; padding: 12px; }
QGroupBox::title { subcontrol-origin: margin; left: 12px; color: #8A857C; }
QSlider { min-height: 22px; }
QSlider::groove:horizontal { background: #202028; height: 4px; border-radius: 2px; }
QSlider::sub-page:horizontal { background: @accent@; height: 4px; border-radius: 2px; }
QSlider::handle:horizontal { background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #CFC9BF, stop:0.39 #CFC9BF,
    stop:0.4 #131317, stop:0.6 #131317, stop:0.61 #CFC9BF, stop:1 #CFC9BF); width: 10px; height: 16px;
    margin: -6px 0; border-radius: 3px; }
QSlider::handle:horizontal:hover { background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #EDEAE3,
    stop:0.39 #EDEAE3, stop:0.4 #131317, stop:0.6 #131317, stop:0.61 #EDEAE3, stop:1 #EDEAE3); }
QSlider::handle:horizontal:pressed { background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 @bright@,
    stop:0.39 @bright@, stop:0.4 #131317, stop:0.6 #131317, stop:0.61 @bright@, stop:1 @bright@); }
QSlider::groove:vertical { background: #202028; width: 4px; border-radius: 2px; }
QSlider::add-page:vertical { background: @accent@; width: 4px; border-radius: 2px; }
QSlider::handle:vertical { background: #CFC9BF; width: 16px; height: 10px; margin: 0 -6px; border-radius: 3px; }
QSlider::handle:vertical:hover { background: #EDEAE3; }
QSlider::handle:vertical:pressed { background: @bright@; }
QSlider::sub-page:horizontal:disabled, QSlider::add-page:vertical:disabled { background: #202028; }
QSlider::handle:disabled { background: #4A4842; }
QSlider[keyFocus="true"]::handle:horizontal { border: 2px solid @ring@; width: 8px; height: 14px; margin: -7px 0;
    border-radius: 4px; }
QSlider[keyFocus="true"]::handle:vertical { border: 2px solid @ring@; width: 14px; height: 8px; margin: 0 -7px;
    border-radius: 4px; }
)"_L1;

// Lists, text, menus, and what scrolls.
constexpr auto views = R"(
QAbstractItemView, QPlainTextEdit, QTextEdit { background: #0C0C0F; border: 1px solid #23232B;
    border-radius: 4px; color: #CFC9BF; outline: 0; selection-background-color: #1F1F26;
    selection-color: #EDEAE3; }
QPlainTextEdit, QTextEdit { background: #121216; }
QListWidget { font-size: 13px; padding: 4px 0; }
QListWidget::item { height: 32px; padding: 0 12px; border: none; }
QAbstractItemView::item:hover { background: #18181E; }
QAbstractItemView::item:selected { background: #1F1F26; color: #EDEAE3; }
QAbstractItemView::item:disabled { color: #4A4842; }
QListWidget[keyFocus="true"]::item:focus { border: 2px solid @ring@; padding: 0 10px; }
QPlainTextEdit[keyFocus="true"], QTextEdit[keyFocus="true"], QTreeView[keyFocus="true"],
QTableView[keyFocus="true"] { border: 2px solid @ring@; }
QHeaderView { background: #131317; border: none; }
QHeaderView::section { background: #131317; border: none; border-bottom: 1px solid #23232B; color: #8A857C;
    padding: 4px 12px; }
QTableCornerButton::section { background: #131317; border: none; }
QComboBox QAbstractItemView, QMenu { background: #18181E; border: 1px solid #2C2C35; border-radius: 4px;
    color: #CFC9BF; padding: 4px; selection-background-color: #1F1F26; selection-color: #EDEAE3; outline: 0; }
QComboBox QAbstractItemView::item { min-height: 28px; padding: 0 8px; }
QComboBox QAbstractItemView::item:hover, QComboBox QAbstractItemView::item:selected { background: #1F1F26;
    color: #EDEAE3; }
QMenu::item { min-height: 20px; padding: 4px 24px 4px 28px; border-radius: 3px; }
QMenu::item:selected { background: #1F1F26; color: #EDEAE3; }
QMenu::item:disabled { background: transparent; color: #4A4842; }
QMenu::separator { background: #23232B; height: 1px; margin: 4px 8px; }
QMenu::indicator { width: 16px; height: 16px; margin-left: 6px; }
QMenu::indicator:checked { image: url(tick-ink.kelpglyph); }
QMenu::right-arrow { image: url(right-ink.kelpglyph); width: 16px; height: 16px; }
QTabWidget::pane { border: 1px solid #23232B; border-radius: 6px; }
QTabBar::tab { background: transparent; border: 1px solid transparent; border-radius: 4px; color: #B9B3A8;
    min-height: 24px; padding: 0 12px; margin: 2px; }
QTabBar::tab:hover { background: #18181E; color: #EDEAE3; }
QTabBar::tab:selected { background: #1F1F26; border-color: #2C2C35; color: #EDEAE3; }
QTabBar::tab:disabled { color: #4A4842; }
QTabBar[keyFocus="true"]::tab:selected { border: 2px solid @ring@; padding: 0 11px; min-height: 22px; }
QToolTip { background: #18181E; border: 1px solid #2C2C35; color: #EDEAE3; padding: 1px 4px; font-size: 12px; }
QProgressBar { background: #202028; border: none; border-radius: 2px; color: #EDEAE3; text-align: center; }
QProgressBar::chunk { background: @accent@; border-radius: 2px; }
QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
QScrollBar::handle { background: #2C2C35; border-radius: 3px; margin: 2px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: #4A4842; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QSplitter::handle { background: #23232B; }
)"_L1;

template<std::size_t count>
QStringList namesOf(const char *const (&families)[count])
{
    QStringList names;
    for (const char *family : families)
        names << QString::fromLatin1(family);
    return names;
}

/// Families as the sheet writes them.
QString typeOf(const QStringList &families)
{
    return u"font-family: \""_s + families.join(u"\", \""_s) + u'"';
}

/// A translucent colour as it looks on the chassis. The toolkit hands a translucent shape as tall as a button
/// to threads of its own, and waits for them.
QColor onChassis(const QColor &colour)
{
    const QColor below = theme::chassis();
    const auto mixed = [share = colour.alphaF()](float top, float ground) {
        return ground + (top - ground) * share;
    };
    return QColor::fromRgbF(mixed(colour.redF(), below.redF()), mixed(colour.greenF(), below.greenF()),
                            mixed(colour.blueF(), below.blueF()));
}

QColor namedColour(QStringView name)
{
    struct Named
    {
        QLatin1StringView name;
        QColor colour;
    };
    const Named all[] = {
        {"accent"_L1, theme::accentGraphic()},
        {"ink"_L1, theme::accentInk()},
        {"bright"_L1, theme::accentBright},
        {"ring"_L1, theme::focusRing()},
        {"wash"_L1, onChassis(theme::wash())},
        {"strong"_L1, onChassis(theme::strongWash())},
        {"plate"_L1, theme::lightTheme ? theme::reversedPlate() : theme::well()},
        {"plateink"_L1, theme::lightTheme ? theme::reversedInk() : theme::ink2()},
        {"proof"_L1, theme::statusInk(theme::proof())},
        {"warning"_L1, theme::statusInk(theme::warning())},
        {"failure"_L1, theme::statusInk(theme::failure())},
    };
    for (const Named &each : all) {
        if (each.name == name)
            return each.colour;
    }
    return {};
}

/// The type of the captions that the sheet sets, because their widgets cannot.
QString captionType()
{
    return engravesCaptions ? typeOf(figureFamilies()) + u"; font-size: 11px"_s : u"font-size: 12px"_s;
}

/// What stands between two "@" of the sheet.
QString placeText(QStringView name)
{
    if (name == "caption"_L1)
        return captionType();
    if (name == "words"_L1)
        return typeOf(interfaceFamilies());
    return name == "figures"_L1 ? typeOf(figureFamilies()) : namedColour(name).name();
}

} // namespace

QStringList figureFamilies()
{
    // A word between figures falls back to the interface's families, not to whatever the system has first.
    return namesOf(type_families::figures) << eastAsianFamily << u"Noto Sans Arabic"_s << u"Monospace"_s;
}

QStringList interfaceFamilies()
{
    return namesOf(type_families::words) << eastAsianFamily << u"Noto Sans Arabic"_s << u"DejaVu Sans"_s;
}

QString darkStyleSheet()
{
    return QString(surfaces) + buttons + fields + views + areaRules + chainRules;
}

QString styleSheetInForce()
{
    const QString neutrals = theme::lightTheme ? mapStylesheetToLight(darkStyleSheet()) : darkStyleSheet();
    // The accent's colours come in afterwards: they have been brought to this look by rules of their own.
    const QList<QStringView> pieces = QStringView(neutrals).split(u'@');
    QString sheet;
    sheet.reserve(neutrals.size() + neutrals.size() / 8);
    for (qsizetype i = 0; i < pieces.size(); ++i) {
        if (i % 2 == 0)
            sheet += pieces.at(i);
        else
            sheet += placeText(pieces.at(i));
    }
    return sheet;
}

void setFontLanguage(const QString &code)
{
    struct Variant
    {
        QLatin1StringView code;
        QLatin1StringView family;
    };
    static constexpr Variant variants[] = {
        {"hant"_L1, "Noto Sans CJK TC"_L1},
        {"ja"_L1, "Noto Sans CJK JP"_L1},
        {"ko"_L1, "Noto Sans CJK KR"_L1},
    };
    eastAsianFamily = "Noto Sans CJK SC"_L1;
    for (const Variant &variant : variants) {
        if (variant.code == code)
            eastAsianFamily = variant.family;
    }
    engravesCaptions = !QStringList{u"zh"_s, u"hant"_s, u"ja"_s, u"ko"_s, u"ar"_s}.contains(code);
}

QFont interfaceFont(int pixelSize)
{
    QFont font;
    font.setFamilies(interfaceFamilies());
    font.setPixelSize(pixelSize);
    return font;
}

QFont figureFont(int pixelSize)
{
    QFont font;
    font.setFamilies(figureFamilies());
    font.setPixelSize(pixelSize);
    return font;
}

QFont captionFont(const QString &caption)
{
    constexpr int engravedPixels = 11;
    constexpr int plainPixels = 12;
    constexpr double tracking = 0.08;
    const bool engraved = std::all_of(caption.begin(), caption.end(), [](QChar c) {
        return !c.isLetter() || c.script() == QChar::Script_Latin || c.script() == QChar::Script_Greek ||
               c.script() == QChar::Script_Cyrillic;
    });
    if (!engraved)
        return interfaceFont(plainPixels);
    QFont font = figureFont(engravedPixels);
    font.setLetterSpacing(QFont::AbsoluteSpacing, tracking * engravedPixels);
    return font;
}
