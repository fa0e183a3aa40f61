#include "ui/style_sheet.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int interfacePixels = 12;

// Surfaces and text.
constexpr auto surfaces = R"(
QWidget { color: #CFC9BF; font-size: 12px; }
QMainWindow, QWidget#vesperRoot { background: #131317; }
QFrame#vesperTitleBar, QFrame#vesperDock {
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #18181E, stop:1 #131317); border: none; }
QFrame#vesperTitleBar { border-bottom: 1px solid #23232B; }
QFrame#vesperDock, QFrame#vesperProg { border-top: 1px solid #23232B; }
QFrame#vesperPanel { background: #131317; border: none; border-right: 1px solid #23232B; }
QFrame#vesperSide { background: #131317; border: none; border-left: 1px solid #23232B; }
QFrame#vesperStatusLine { background: #0C0C0F; border: none; border-top: 1px solid #23232B; }
QLabel#vesperBrand { background: #08080A; border: 1px solid #2C2C35; border-radius: 4px; color: #C9A96E;
    font-weight: 600; padding: 0 12px; }
QLabel#vesperWinTitle { color: #CFC9BF; font-size: 13px; }
QLabel#vesperPanelTitle, QLabel#vesperPanelMeta, QLabel#vesperCardKey, QLabel#vesperModel { color: #8A857C;
    font-size: 11px; }
QLabel#vesperSetName { color: #CFC9BF; }
QFrame#vesperCard { background: #18181E; border: 1px solid #23232B; border-radius: 6px; }
QFrame#vesperVfd { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #08080A, stop:1 #0C0C0F);
    border: 1px solid #2C2C35; border-radius: 6px; }
QLabel#vesperVfdMeta, QLabel#vesperVfdStatus, QLabel#vesperVfdSignal, QLabel#vesperVfdLevels { color: #8A857C;
  font-size: 11px; }
QLabel#vesperVfdSignal[chainWarn="true"] { color: #C9A96E; }
QLabel#vesperVfdMeta[sounding="true"], QLabel#vesperVfdStatus[sounding="true"] { color: #C9A96E; }
QLabel#vesperVfdFormat { border: 1px solid #2C2C35; border-radius: 3px; color: #B9B3A8; font-size: 11px;
    padding: 1px 8px; }
QLabel#vesperVfdTitle { color: #EDEAE3; font-size: 26px; font-weight: 600; }
QLabel#vesperVfdArtist { color: #CFC9BF; font-size: 15px; }
QLabel#vesperVfdTime { color: #8A857C; font-size: 30px; }
QLabel#vesperVfdTime[sounding="true"] { color: #C9A96E; }
QFrame#vesperVfdLine { background: #23232B; border: none; max-height: 1px; }
QLabel#vesperNowTitle { color: #EDEAE3; font-size: 14px; font-weight: 600; }
QLabel#vesperNowArtist { color: #8A857C; font-size: 12px; }
QLabel#vesperTime, QLabel#vesperVolume { color: #CFC9BF; }
QLabel#vesperMessage { color: #B9B3A8; }
QLabel#vesperDeviceHint { color: #D4A843; }
)"_L1;

// Controls in all their states.
constexpr auto controls = R"(
QPushButton { background: #18181E; border: 1px solid #2C2C35; border-radius: 4px; color: #CFC9BF;
    min-height: 28px; padding: 0 12px; }
QPushButton:hover { background: #1F1F26; color: #EDEAE3; }
QPushButton:pressed { background: #0C0C0F; color: #EDEAE3; }
QPushButton:disabled { background: #131317; border-color: #23232B; color: #4A4842; }
QPushButton:focus, QToolButton:focus { border: 2px solid #E0C896; padding: 0 11px; }
QPushButton#vesperMinor { background: transparent; border-color: transparent; color: #B9B3A8; }
QPushButton#vesperMinor:hover { background: #18181E; color: #EDEAE3; }
QPushButton#vesperMinor:disabled { color: #4A4842; }
QToolButton { background: transparent; border: 1px solid transparent; border-radius: 4px; color: #B9B3A8;
    padding: 0; }
QToolButton:hover { background: #1F1F26; color: #EDEAE3; }
QToolButton:pressed { background: #0C0C0F; }
QToolButton:focus { padding: 0; }
QToolButton#vesperPlay { background: rgba(201, 169, 110, 33); border: 1px solid #C9A96E; border-radius: 19px; }
QToolButton#vesperPlay:hover { background: rgba(201, 169, 110, 56); border-color: #E0C896; }
QToolButton#vesperPlay:disabled { background: transparent; border-color: #23232B; }
QToolButton#vesperPlay:focus { border: 2px solid #E0C896; }
QToolButton#vesperSwitch { padding: 0 8px; }
QToolButton#vesperSwitch:checked { color: #EDEAE3; }
QComboBox, QLineEdit, QDoubleSpinBox { background: #18181E; border: 1px solid #2C2C35; border-radius: 4px;
    color: #CFC9BF; min-height: 26px; padding: 0 8px; selection-background-color: #C9A96E;
    selection-color: #08080A; }
QComboBox:hover, QLineEdit:hover, QDoubleSpinBox:hover { background: #1F1F26; color: #EDEAE3; }
QComboBox:focus, QLineEdit:focus, QDoubleSpinBox:focus { border: 2px solid #E0C896; padding: 0 7px; }
QComboBox:on { border: 1px solid #C9A96E; padding: 0 8px; }
QComboBox:disabled, QLineEdit:disabled, QDoubleSpinBox:disabled { background: #131317; border-color: #23232B;
    color: #4A4842; }
QComboBox::drop-down { border: none; width: 24px; }
QComboBox::down-arrow { image: url(:/glyphs/chevron_down.png); width: 10px; height: 10px; }
QDoubleSpinBox::up-button, QDoubleSpinBox::down-button { border: none; width: 18px; background: transparent; }
QDoubleSpinBox::up-arrow { image: url(:/glyphs/chevron_up.png); width: 8px; height: 8px; }
QDoubleSpinBox::down-arrow { image: url(:/glyphs/chevron_down.png); width: 8px; height: 8px; }
QComboBox QAbstractItemView, QMenu { background: #18181E; border: 1px solid #2C2C35; color: #CFC9BF;
    selection-background-color: #1F1F26; selection-color: #EDEAE3; outline: 0; }
QCheckBox { color: #CFC9BF; spacing: 8px; border: 2px solid transparent; border-radius: 4px; }
QCheckBox:focus { border-color: #E0C896; }
QCheckBox:disabled, QLabel:disabled { color: #4A4842; }
QCheckBox::indicator { width: 14px; height: 14px; border: 1px solid #2C2C35; border-radius: 3px;
    background: #131317; }
QCheckBox::indicator:hover { background: #1F1F26; }
QCheckBox::indicator:checked { background: #C9A96E; border-color: #C9A96E; image: url(:/glyphs/tick.png); }
QCheckBox::indicator:disabled { border-color: #23232B; background: #131317; }
QSlider { min-height: 22px; }
QSlider:focus { border: 2px solid #E0C896; border-radius: 4px; }
QSlider::groove:horizontal { background: #202028; height: 4px; border-radius: 2px; }
QSlider::sub-page:horizontal { background: #C9A96E; height: 4px; border-radius: 2px; }
QSlider::handle:horizontal { background: #CFC9BF; width: 10px; height: 16px; margin: -6px 0;
    border-radius: 3px; }
QSlider::handle:horizontal:hover { background: #EDEAE3; }
QSlider::handle:horizontal:pressed { background: #E0C896; }
QToolTip { background: #18181E; border: 1px solid #2C2C35; color: #EDEAE3; padding: 4px; }
)"_L1;

// Lists, text and what scrolls.
constexpr auto views = R"(
QListWidget, QPlainTextEdit, QTextBrowser { background: #0C0C0F; border: 1px solid #23232B; border-radius: 4px;
    color: #CFC9BF; outline: 0; }
QListWidget:focus, QPlainTextEdit:focus { border: 2px solid #E0C896; }
QListWidget { font-size: 13px; padding: 4px 0; }
QListWidget::item { height: 32px; padding: 0 12px; border: none; }
QListWidget::item:hover { background: #18181E; }
QListWidget::item:selected { background: #1F1F26; color: #EDEAE3; }
QProgressBar#vesperDial { background: #202028; border: none; border-radius: 1px; }
QProgressBar#vesperDial::chunk { background: #C9A96E; border-radius: 1px; }
QScrollArea, QScrollArea > QWidget > QWidget { background: transparent; border: none; }
QScrollBar:vertical { background: transparent; width: 10px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 10px; margin: 0; }
QScrollBar::handle { background: #2C2C35; border-radius: 3px; margin: 2px; min-height: 28px; min-width: 28px; }
QScrollBar::handle:hover { background: #4A4842; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
)"_L1;

// The signal chain's panel, its report and the self-check.
constexpr auto chainRules = R"(
QFrame#vesperChainBox, QWidget#vesperCardCell, QWidget#vesperChainRows { background: transparent; border: none; }
QFrame#vesperChainCard, QFrame#vesperCard { background: #18181E; border: 1px solid #23232B; border-radius: 6px; }
QFrame#vesperCard { color: #23232B; }
QLabel#vesperCardKey { color: #8A857C; font-family: "DejaVu Sans Mono"; font-size: 11px; }
QLabel#vesperCardVal { color: #EDEAE3; font-family: "DejaVu Sans Mono"; font-size: 14px; }
QFrame#vesperChainLamp { background: #4A4842; border: none; border-radius: 5px; }
QFrame#vesperChainLamp[lamp="good"] { background: #6FC084; }
QFrame#vesperChainLamp[lamp="warn"] { background: #D4A843; }
QLabel#vesperChainVerdict { color: #EDEAE3; font-size: 20px; font-weight: 600; }
QLabel#vesperChainVerdict[px="18"] { font-size: 18px; }
QLabel#vesperChainVerdict[px="16"] { font-size: 16px; }
QLabel#vesperChainVerdict[px="14"] { font-size: 14px; }
QLabel#vesperChainVerdict[px="12"] { font-size: 12px; }
QLabel#vesperChainWarnings { color: #D4A843; font-size: 12px; font-weight: 600; }
QLabel#vesperChainRow { color: #B9B3A8; border: none; border-bottom: 1px solid #23232B; padding: 5px 0; }
QLabel#vesperChainRow[chainWarn="true"] { background: rgba(212, 168, 67, 31); color: #EDEAE3;
    border-left: 2px solid #D4A843; padding: 5px 10px; }
QDialog#vesperReportDialog, QDialog#vesperCheckDialog { background: #131317; }
QDialog#vesperReportDialog QPushButton:default, QDialog#vesperCheckDialog QPushButton:default {
    background: rgba(201, 169, 110, 33); border-color: #C9A96E; color: #C9A96E; font-weight: 600; }
QDialog#vesperReportDialog QPushButton:default:hover, QDialog#vesperCheckDialog QPushButton:default:hover {
    background: rgba(201, 169, 110, 56); }
QPlainTextEdit#vesperReport { font-family: "DejaVu Sans Mono"; font-size: 12px; }
QFrame#vesperCheckPlate { background: #0C0C0F; border: none; border-bottom: 1px solid #23232B; }
QLabel#vesperCheckVerdict { color: #CFC9BF; font-size: 18px; font-weight: 700; }
QLabel#vesperCheckVerdict[passed="true"] { color: #78C88C; }
QLabel#vesperCheckVerdict[passed="false"] { color: #D08A5A; }
QLabel#vesperCheckAbout { color: #B9B3A8; font-size: 13px; }
QFrame#vesperCheckStatement { background: transparent; border: none; border-bottom: 1px solid #23232B; }
QLabel#vesperCheckMark { color: #8A857C; }
QLabel#vesperCheckMark[mark="proved"] { color: #6FC084; }
QLabel#vesperCheckMark[mark="disproved"] { color: #C75C4A; }
QLabel#vesperCheckHead { color: #EDEAE3; font-size: 15px; font-weight: 600; }
QLabel#vesperCheckText { color: #B9B3A8; font-size: 13px; }
QLabel#vesperCheckEvidence { color: #CFC9BF; font-family: "DejaVu Sans Mono"; font-size: 12px; }
QLabel#vesperCheckBreak { color: #EDEAE3; font-size: 13px; font-weight: 600; }
QLabel#vesperCheckExplain { color: #8A857C; }
QListWidget#vesperCheckList { border-left: none; border-right: none; border-radius: 0; font-size: 12px; }
QListWidget#vesperCheckList::item { height: 24px; padding: 0 24px; }
QListWidget#vesperCheckList::item:hover { background: transparent; }
)"_L1;

} // namespace

QString darkStyleSheet()
{
    return QString(surfaces) + controls + views + chainRules;
}

QFont interfaceFont()
{
    QFont font;
    font.setFamilies(
        {u"Inter"_s, u"Noto Sans"_s, u"Noto Sans CJK SC"_s, u"Noto Sans Arabic"_s, u"DejaVu Sans"_s});
    font.setPixelSize(interfacePixels);
    return font;
}

QFont figureFont(int pixelSize)
{
    QFont font;
    font.setFamilies({u"DejaVu Sans Mono"_s, u"Noto Sans Mono"_s});
    font.setStyleHint(QFont::Monospace);
    font.setPixelSize(pixelSize);
    return font;
}
