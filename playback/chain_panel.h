/// \file
/// The side column's account of the signal: the verdict, what the source is, and the stages one by one.
#pragma once

#include "playback/chain_cards.h"
#include "playback/chain_lamp.h"
#include "playback/chain_rows.h"

#include <QFrame>
#include <QLabel>
#include <array>

class QBoxLayout;
class QGridLayout;

/// The triangle with the number of warnings. Drawn in the colour that the style sheet gives it.
class WarningCount final : public QLabel
{
    Q_OBJECT

public:
    explicit WarningCount(QWidget *parent = nullptr);
    /// Hides itself at 0.
    void setCount(int count);

protected:
    void paintEvent(QPaintEvent *event) override;
};

/// Two by two cards in one frame, or one line each in a narrow column. The hairlines between them have the
/// frame's text colour.
class ValueCards final : public QFrame
{
    Q_OBJECT

public:
    explicit ValueCards(QWidget *parent = nullptr);
    void setTexts(const ChainCardTexts &texts);

protected:
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    struct Card
    {
        QWidget *cell = nullptr;
        QBoxLayout *box = nullptr;
        QLabel *value = nullptr;
    };
    Card addCard(const QString &key);
    void arrange(bool narrow);

    std::array<Card, 4> m_cards;
    QGridLayout *m_grid;
    bool m_narrow = false;
};

/// The rows of the chain, one below the other. Where the height is short, rows without a warning give way
/// from the last upward; a warning never does.
class ChainRowList final : public QWidget
{
    Q_OBJECT

public:
    explicit ChainRowList(QWidget *parent = nullptr);
    void setRows(const QList<ChainRow> &rows);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    int heightOf(const QLabel &label) const;
    int sumOfHeights(bool warningsOnly) const;
    void place();

    struct Line
    {
        QLabel *label;
        bool warn;
    };
    QList<Line> m_lines;
    QList<ChainRow> m_rows;
};

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
