/// \file
/// Frequency bands of both channels: the left one grows upward from the centre line, the right one downward.
#pragma once

#include "ui/spoken_value.h"

#include <QTimer>
#include <QWidget>
#include <array>
#include <span>

class SpectrumView final : public QWidget, public SpokenValue
{
    Q_OBJECT

public:
    static constexpr int fixedHeight = 72;
    static constexpr int leastWidth = 160;
    static constexpr int mostBands = 128;
    static constexpr double floorDb = -96.;

    explicit SpectrumView(QWidget *parent = nullptr);

    /// What the bars move to. Levels in dB, lowest band first; bands that a channel has no level for stand at
    /// floorDb. \param bandCount 1 … mostBands; anything else is no frame and changes nothing
    void showFrame(std::span<const double> left, std::span<const double> right, int bandCount);
    /// Indices of the first bands above 200 Hz, 20 kHz and 22.05 kHz; 0 for one that is not known.
    void setZones(int low, int audible, int nyquist);
    /// No bands, and no reason for it.
    void clear();
    /// No bands, because this path carries no PCM; \param text says so in the middle of the view
    void showNoPcm(const QString &text);

    /// One step of the bars on their way; the timer's, every 16 ms.
    void advance();

    int bandCount() const { return m_bandCount; }
    /// Whether bars are on their way; then a timer runs, unless nobody could see it.
    bool isMoving() const { return m_timer.isActive(); }
    double shownLeft(int band) const { return m_shownL.at(static_cast<std::size_t>(band)); }
    double shownRight(int band) const { return m_shownR.at(static_cast<std::size_t>(band)); }

    QString spokenValue() const override;

Q_SIGNALS:
    void bandCountChanged(int bandCount);

protected:
    void paintEvent(QPaintEvent *event) override;
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    using Levels = std::array<double, mostBands>;

    bool step(Levels &shown, const Levels &target) const;
    void setBandCount(int count);
    void setReason(bool noPcm, const QString &text);
    bool canBeSeen() const;
    QColor colourOf(int band) const;
    void paintBars(QPainter &painter) const;

    Levels m_targetL{};
    Levels m_targetR{};
    Levels m_shownL{};
    Levels m_shownR{};
    int m_bandCount = 0;
    int m_zoneLow = 0;
    int m_zoneAudible = 0;
    int m_zoneNyquist = 0;
    bool m_noPcm = false;
    QString m_noPcmText;
    QTimer m_timer;
};
