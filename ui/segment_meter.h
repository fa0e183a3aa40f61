/// \file
/// One channel's peak level in 36 segments.
#pragma once

#include "ui/meter_reading.h"
#include "ui/spoken_value.h"

#include <QWidget>

class SegmentMeter final : public QWidget, public SpokenValue
{
    Q_OBJECT

public:
    static constexpr int fixedHeight = 12;

    explicit SegmentMeter(QWidget *parent = nullptr);

    /// Repaints only when something is seen of the change.
    void showReading(const MeterReading &reading);
    double dbfs() const { return m_dbfs; }
    bool clip() const { return m_clip; }

    QString spokenValue() const override { return levelText(m_dbfs); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double m_dbfs = meterFloorDb;
    bool m_clip = false;
};
