/// \file
/// The stages of the signal chain, one by one.
#pragma once

#include "playback/chain_rows.h"

#include <QLabel>

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
