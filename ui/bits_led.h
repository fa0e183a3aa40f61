/// \file
/// How many bits of the signal arrive, and a lamp for what became of them.
#pragma once

#include "ui/spoken_value.h"

#include <QWidget>

class BitsLed final : public QWidget, public SpokenValue
{
    Q_OBJECT

public:
    static constexpr QSize fixedSize{46, 18};

    explicit BitsLed(QWidget *parent = nullptr);

    /// \param bits below 1: not known
    /// \param state 0 unknown, 1 transparent, 2 depth, 3 used up; any other number counts as 0
    void showBits(int bits, int state);
    int bits() const { return m_bits; }
    int state() const { return m_state; }
    QColor lampColour() const;

    QString spokenValue() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_bits = 0;
    int m_state = 0;
};
