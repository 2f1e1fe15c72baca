#include "movableframe_p.h"

#include "edgeband_p.h"

#include <QtCore/QDebug>
#include <QtGui/QMouseEvent>
#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

namespace vorlin {

MovableFrame::MovableFrame(QWidget* window, const QSize& normalSize, const QString& dragCursorImage)
    : drag(window, normalSize)
    , m_window(window)
    , m_dragCursorImage(dragCursorImage)
{
}

int MovableFrame::hitTest(const QPoint& pos) const
{
    if (!moveZoomEnabled || m_window->isMaximized() || m_window->isFullScreen())
        return 0;
    return edgeBandHitTest(pos, m_window->size(), {resizeBorderWidth, 0});
}

void MovableFrame::press(QMouseEvent* event)
{
    m_window->setFocus();
    if (event->button() != Qt::LeftButton && event->button() != Qt::MiddleButton)
        return;
    const int b = resizeBorderWidth + 1;
    const QRect dragArea(b, b, m_window->width() - 2 * b, m_window->height() - 2 * b);
    const QPoint pos = event->globalPos() - m_window->pos();
    if (!dragArea.contains(pos))
        return; // on the resize band
    qDebug() << "MovableFrame::press drag area" << dragArea << "point" << pos;
    const QPixmap image(m_dragCursorImage);
    if (image.isNull())
        m_window->setCursor(Qt::SizeAllCursor); // the application ships no cursor image
    else
        m_window->setCursor(QCursor(image.scaled(20, 20))); // hot spot at the centre
    drag.begin(pos);
}

void MovableFrame::move(QMouseEvent* event)
{
    if (drag.pressed)
        drag.follow(event);
}

void MovableFrame::release(QMouseEvent* event)
{
    // Unlike the main window's, not suppressed after a double click.
    drag.end(event->globalPos());
    m_window->setCursor(Qt::ArrowCursor);
}

void setStaysOnTopHint(QWidget* window, bool onTop)
{
    const bool visible = window->isVisible();
    window->setWindowFlag(Qt::WindowStaysOnTopHint, onTop);
    if (visible)
        window->show();
}

} // namespace vorlin
