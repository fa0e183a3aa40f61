/// \file
/// What the source is: bit rate, sample rate, channels and play count.
#pragma once

#include "playback/chain_cards.h"

#include <QFrame>
#include <array>

class QBoxLayout;
class QGridLayout;
class QLabel;

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
