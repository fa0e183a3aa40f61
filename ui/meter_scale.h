/// \file
/// The figures under the meters.
#pragma once

#include <QWidget>

/// Wider than the meters by `overhang` on both sides, so that the outer figures can be centred on their
/// places.
class MeterScale final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int fixedHeight = 16;
    static constexpr int overhang = 16;

    explicit MeterScale(QWidget *parent = nullptr);

protected:
    void paintEvent(QPaintEvent *event) override;
};
