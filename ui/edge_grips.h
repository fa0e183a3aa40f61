/// \file
/// The edges of a window without a frame: its outline, and where a hand takes hold of it to resize it.
#pragma once

#include <QObject>
#include <QWidget>
#include <array>

/// Four sides, and at each of the four corners one grip along either side.
inline constexpr int gripCount = 12;

/// Thin widgets along the window's border, above all others: clear but for the line that sets the window off
/// from what lies behind it. They hide while the window is maximised or fills the screen. The system does the
/// resizing.
class EdgeGrips final : public QObject
{
    Q_OBJECT

public:
    /// \param window the top-level window; the grips are its children
    explicit EdgeGrips(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void place();

    QWidget *m_window;
    std::array<QWidget *, gripCount> m_grips{};
};

/// The edges that a grip moves, by its index: four sides, then the corners along the upper and lower side,
/// then the corners along the left and right one.
Qt::Edges edgesOfGrip(int index);
/// Where a grip lies in a window of this size.
QRect placeOfGrip(int index, QSize window);
