/// \file
/// The window's memory of what it shows of the signal chain.
#pragma once

#include "playback/chain_cards.h"
#include "playback/self_check_state.h"

#include <QPointer>
#include <QWidget>

class QListWidget;
class ReportDialog;
class SelfCheckDialog;

struct ChainViewState
{
    ChainCardTexts cards; ///< of the track that is shown; empty until the engine has told of it
    SelfCheckState check;
    // Made at their first use; children of the window.
    ReportDialog *reportDialog = nullptr;
    SelfCheckDialog *verifyDialog = nullptr;
    QListWidget *verifyList = nullptr; ///< of the dialog
    /// What got the focus when the report's button, which had it, was disabled; null where it had not.
    QPointer<QWidget> focusFromReport;
};
