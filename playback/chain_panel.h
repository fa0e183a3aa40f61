/// \file
/// The side column's account of the signal: the verdict, what the source is, and the stages one by one.
#pragma once

#include "playback/chain_cards.h"
#include "playback/chain_lamp.h"
#include "playback/chain_rows.h"

#include <QFrame>

class ChainRowList;
class QLabel;
class ValueCards;
class WarningCount;

/// Object names: vesperChainBox (this), vesperChainCard, vesperChainLamp (property "lamp": off, good, warn),
/// vesperChainVerdict (property "px"), vesperChainWarnings, vesperCard, vesperCardCell, vesperCardKey,
/// vesperCardVal, vesperChainRows, vesperChainRow (property "chainWarn").
class ChainPanel final : public QFrame
{
    Q_OBJECT

public:
    explicit ChainPanel(QWidget *parent = nullptr);

    void showVerdict(const ChainLampView &view);
    void showCards(const ChainCardTexts &texts);
    /// Replaces the rows; without any, or while they are switched off, their place is hidden. The verdict
    /// card counts their warnings in either case.
    void showRows(const QList<ChainRow> &rows);
    void setRowsEnabled(bool enabled);
    /// The value cards give way where the column is too low for them.
    void setCardsVisible(bool visible);

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void fitWord();

    QFrame *m_card;
    QFrame *m_lamp;
    QLabel *m_word;
    WarningCount *m_warnings;
    ValueCards *m_values;
    ChainRowList *m_rows;
    bool m_rowsEnabled = true;
};
