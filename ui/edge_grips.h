/// \file
/// The edges of a window without a frame: where a hand takes hold of it to resize it.
#pragma once

#include <QObject>
#include <QWidget>
#include <array>

/// Eight thin, invisible widgets along the window's border, above all others. They hide while the window is
/// maximised or fills the screen. The system does the resizing.
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
    std::array<QWidget *, 8> m_grips{};
};

/// The edges that a grip moves, by its index: four sides, then four corners.
Qt::Edges edgesOfGrip(int index);
/// Where a grip lies in a window of this size.
QRect placeOfGrip(int index, QSize window);
