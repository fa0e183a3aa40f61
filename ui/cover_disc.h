/// \file
/// The stage's disc: the cover cut to a circle, with a ring that lights as the track goes on.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

/// It does not turn: the signal moves, the furniture does not. Never mirrored.
class CoverDisc final : public QWidget
{
    Q_OBJECT

public:
    static constexpr int tickCount = 120;

    explicit CoverDisc(QWidget *parent = nullptr);

    /// A null image shows the idle text.
    void showCover(const QImage &cover);
    /// \param fraction how much of the track has been played, 0 to 1; below 0 for none
    void showPosition(double fraction);
    int litTicks() const { return m_litTicks; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void paintRing(QPainter &painter, QPointF centre, double radius) const;
    void paintIdle(QPainter &painter, QPointF centre, double radius) const;
    const QPixmap &scaledCover(int diameter);

    QImage m_cover;
    QPixmap m_scaled; ///< of m_cover at the size and the screen it was last painted for
    int m_litTicks = 0;
};

/// The largest square of the picture's middle, at a size in device pixels.
QImage squareCover(const QImage &cover, int side);
