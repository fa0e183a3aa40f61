#include "ui/edge_grips.h"

#include <QEvent>
#include <QMouseEvent>
#include <QWindow>

namespace {

constexpr int thickness = 5;
constexpr int cornerLength = 14;

constexpr std::array gripEdges = {Qt::Edges(Qt::LeftEdge),     Qt::Edges(Qt::RightEdge),
                                  Qt::Edges(Qt::TopEdge),      Qt::Edges(Qt::BottomEdge),
                                  Qt::TopEdge | Qt::LeftEdge,  Qt::BottomEdge | Qt::RightEdge,
                                  Qt::TopEdge | Qt::RightEdge, Qt::BottomEdge | Qt::LeftEdge};
constexpr std::array gripCursors = {Qt::SizeHorCursor,   Qt::SizeHorCursor,   Qt::SizeVerCursor,
                                    Qt::SizeVerCursor,   Qt::SizeFDiagCursor, Qt::SizeFDiagCursor,
                                    Qt::SizeBDiagCursor, Qt::SizeBDiagCursor};

class Grip final : public QWidget
{
public:
    Grip(QWidget *window, int index)
        : QWidget(window)
        , m_edges(edgesOfGrip(index))
    {
        setCursor(gripCursors.at(index));
        setFocusPolicy(Qt::NoFocus);
        // Without this the sheet would paint a plate over the window's border.
        setAttribute(Qt::WA_NoSystemBackground);
    }

protected:
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
    const bool horizontal = edges & (Qt::LeftEdge | Qt::RightEdge);
    const bool vertical = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool corner = horizontal && vertical;
    const int width = corner ? cornerLength : horizontal ? thickness : window.width() - 2 * cornerLength;
    const int height = corner ? thickness : vertical ? thickness : window.height() - 2 * cornerLength;
    const int x = edges & Qt::LeftEdge ? 0 : edges & Qt::RightEdge ? window.width() - width : cornerLength;
    const int y = edges & Qt::TopEdge ? 0 : edges & Qt::BottomEdge ? window.height() - height : cornerLength;
    return {x, y, width, height};
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
