#include "ui/style_rules.h"

using namespace Qt::StringLiterals;

const QLatin1StringView areaRules = R"(
QPushButton, QToolButton, QCheckBox, QRadioButton, QComboBox, QSlider, QTabBar { outline: none; }
QPushButton#vesperChip:disabled { color: #4A4842; }
QPlainTextEdit#vesperLog { border: none; border-top: 1px solid #23232B; border-radius: 0; padding: 8px 12px; }
QPlainTextEdit#vesperLog[keyFocus="true"] { border: 2px solid @ring@; padding: 7px 10px 6px 10px; }
QScrollArea#vesperSetupPage { border-bottom: 1px solid #23232B; }
QTextBrowser#vesperHelp { background: transparent; border: none; font-size: 13px; }
QPushButton#vesperPoint { padding: 0; min-height: 0; font-weight: 600; color: #B9B3A8; }
QPushButton#vesperPoint:checked { color: @ink@; }
QPushButton#vesperPoint[keyFocus="true"] { border: 2px solid @ring@; padding: 0; min-height: 0; }
QPushButton#vesperToolsBtn { padding: 0 10px; }
QLabel#vesperVfdTotal { color: #8A857C; }
QLabel#vesperVfdAlbum { color: #8A857C; font-size: 13px; }
QLabel#vesperBayLabel { color: #8A857C; font-size: 12px; }
QLabel#vesperShown { color: #B9B3A8; border-left: 1px solid #23232B; padding-left: 8px; }
QLabel#vesperDspCaption { color: #EDEAE3; }
QLabel#vesperDspSummary { color: #8A857C; font-size: 12px; }
QLabel#vesperDspLive { color: @ink@; font-size: 11px; }
QLabel#vesperDspLive:disabled { color: #8A857C; }
QLabel#vesperSectionTitle { color: #EDEAE3; font-size: 18px; font-weight: 600; }
QFrame#vesperRule { background: #23232B; border: none; }
)"_L1;

// The signal chain's panel, its report and the self-check.
const QLatin1StringView chainRules = R"(
QFrame#vesperChainBox, QWidget#vesperCardCell, QWidget#vesperChainRows { background: transparent; border: none; }
QFrame#vesperChainCard, QFrame#vesperCard { background: #18181E; border: 1px solid #23232B; border-radius: 6px; }
QFrame#vesperCard { color: #23232B; }
QLabel#vesperCardKey { color: #8A857C; @caption@; }
QLabel#vesperCardVal { color: #EDEAE3; @figures@; font-size: 14px; }
QLabel#vesperCardVal[oneLine="true"] { font-size: 12px; }
QLabel#vesperCardVal[words="true"] { @words@; font-size: 12px; }
QFrame#vesperChainLamp { background: #4A4842; border: none; border-radius: 5px; }
QFrame#vesperChainLamp[lamp="good"] { background: #6FC084; }
QFrame#vesperChainLamp[lamp="warn"] { background: #D4A843; }
QLabel#vesperChainVerdict { color: #EDEAE3; font-size: 20px; font-weight: 600; }
QLabel#vesperChainVerdict[px="18"] { font-size: 18px; }
QLabel#vesperChainVerdict[px="16"] { font-size: 16px; }
QLabel#vesperChainVerdict[px="14"] { font-size: 14px; }
QLabel#vesperChainVerdict[px="12"] { font-size: 12px; }
QLabel#vesperChainWarnings { color: @warning@; font-size: 12px; font-weight: 600; }
QLabel#vesperChainRow { color: #B9B3A8; border: none; border-bottom: 1px solid #23232B; padding: 5px 0; }
QLabel#vesperChainRow[chainWarn="true"] { background: rgba(212, 168, 67, 31); color: #EDEAE3;
    border-left: 2px solid #D4A843; padding: 5px 10px; }
QLabel#vesperChainRow[chainWarn="true"][mirrored="true"] { border-left: none; border-right: 2px solid #D4A843; }
QDialog#vesperReportDialog, QDialog#vesperCheckDialog { background: #131317; }
QPlainTextEdit#vesperReport { @figures@; font-size: 12px; padding: 8px; }
QFrame#vesperCheckPlate { background: @plate@; border: none; border-bottom: 1px solid #23232B; }
QLabel#vesperCheckVerdict { color: @plateink@; font-size: 18px; font-weight: 700; }
QLabel#vesperCheckVerdict[passed="true"] { color: #78C88C; }
QLabel#vesperCheckVerdict[passed="false"] { color: #D08A5A; }
QLabel#vesperCheckAbout { color: @plateink@; font-size: 13px; }
QFrame#vesperCheckStatement { background: transparent; border: none; border-bottom: 1px solid #23232B; }
QLabel#vesperCheckMark { color: #8A857C; }
QLabel#vesperCheckMark[mark="proved"] { color: @proof@; }
QLabel#vesperCheckMark[mark="disproved"] { color: @failure@; }
QLabel#vesperCheckHead { color: #EDEAE3; font-size: 15px; font-weight: 600; }
QLabel#vesperCheckText { color: #B9B3A8; font-size: 13px; }
QLabel#vesperCheckEvidence { color: #CFC9BF; @figures@; font-size: 12px; }
QLabel#vesperCheckBreak { color: #EDEAE3; font-size: 13px; font-weight: 600; }
QLabel#vesperCheckExplain { color: #8A857C; }
QListWidget#vesperCheckList { border-left: none; border-right: none; border-radius: 0; font-size: 12px; }
QListWidget#vesperCheckList::item { height: 24px; padding: 0 24px; }
QListWidget#vesperCheckList::item:hover { background: transparent; }
)"_L1;
