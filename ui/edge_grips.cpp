#include "ui/edge_grips.h"

#include "ui/pixel_grid.h"
#include "ui/theme.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWindow>

namespace {

constexpr int thickness = 5;
constexpr int cornerLength = 14;

constexpr Qt::Edges upperLeft = Qt::TopEdge | Qt::LeftEdge;
constexpr Qt::Edges upperRight = Qt::TopEdge | Qt::RightEdge;
constexpr Qt::Edges lowerLeft = Qt::BottomEdge | Qt::LeftEdge;
constexpr Qt::Edges lowerRight = Qt::BottomEdge | Qt::RightEdge;
constexpr std::array<Qt::Edges, gripCount> gripEdges = {
    Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge, Qt::BottomEdge, upperLeft, upperRight,
    lowerLeft,    lowerRight,    upperLeft,   upperRight,     lowerLeft, lowerRight};
constexpr int firstUprightCorner = 8;

Qt::CursorShape cursorOf(Qt::Edges edges)
{
    if (edges == upperLeft || edges == lowerRight)
        return Qt::SizeFDiagCursor;
    if (edges == upperRight || edges == lowerLeft)
        return Qt::SizeBDiagCursor;
    return edges & (Qt::LeftEdge | Qt::RightEdge) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

class Grip final : public QWidget
{
public:
    Grip(QWidget *window, int index)
        : QWidget(window)
        , m_edges(edgesOfGrip(index))
    {
        setCursor(cursorOf(m_edges));
        setFocusPolicy(Qt::NoFocus);
        // Without this the sheet would paint a plate over the window's border.
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const PixelGrid grid(painter);
        const double across = grid.width(1.);
        const double down = grid.height(1.);
        // The lines of the window's edges that run through this widget.
        const QRect inside(-pos(), window()->size());
        for (const QRectF &line :
             {QRectF(inside.left(), 0., across, height()),
              QRectF(grid.x(inside.left() + inside.width()) - across, 0., across, height()),
              QRectF(0., inside.top(), width(), down),
              QRectF(0., grid.y(inside.top() + inside.height()) - down, width(), down)})
            painter.fillRect(line, theme::edge());
    }
    void mousePressEvent(QMouseEvent *event) override
    {
        QWindow *handle = window()->windowHandle();
        if (event->button() == Qt::LeftButton && handle)
            handle->startSystemResize(m_edges);
    }

private:
    Qt::Edges m_edges;
};

} // namespace

Qt::Edges edgesOfGrip(int index)
{
    return gripEdges.at(index);
}

QRect placeOfGrip(int index, QSize window)
{
    const Qt::Edges edges = edgesOfGrip(index);
    const bool besides = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool above = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool corner = besides && above;
    const bool upright = corner ? index >= firstUprightCorner : besides;
    const int length =
        corner ? cornerLength : (upright ? window.height() : window.width()) - 2 * cornerLength;
    const QSize size = upright ? QSize(thickness, length) : QSize(length, thickness);
    // What has no end of its own on an axis stands between the corners there.
    const int x = edges & Qt::LeftEdge    ? 0
                  : edges & Qt::RightEdge ? window.width() - size.width()
                                          : cornerLength;
    const int y = edges & Qt::TopEdge      ? 0
                  : edges & Qt::BottomEdge ? window.height() - size.height()
                                           : cornerLength;
    return {QPoint(x, y), size};
}

EdgeGrips::EdgeGrips(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    for (int i = 0; i < static_cast<int>(m_grips.size()); ++i)
        m_grips.at(i) = new Grip(window, i);
    window->installEventFilter(this);
    place();
}

bool EdgeGrips::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::WindowStateChange ||
        event->type() == QEvent::Show)
        place();
    return QObject::eventFilter(watched, event);
}

void EdgeGrips::place()
{
    const bool fixed = m_window->isMaximized() || m_window->isFullScreen();
    for (int i = 0; i < static_cast<int>(m_grips.size()); ++i) {
        m_grips.at(i)->setVisible(!fixed);
        m_grips.at(i)->setGeometry(placeOfGrip(i, m_window->size()));
        m_grips.at(i)->raise();
    }
}
