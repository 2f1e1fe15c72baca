#include "framedrag_p.h"

#include "shadowwidget.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QScreen>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace vorlin {

FrameDrag::FrameDrag(QWidget* window, const QSize& normalSize)
    : normalSize(normalSize)
    , preview(new ShadowWidget(window))
    , m_window(window)
{
}

void FrameDrag::begin(const QPoint& grab)
{
    grabPoint = grab;
    pressed = true;
}

void FrameDrag::follow(const QMouseEvent* event)
{
    const QPoint global = event->globalPos();
    if (m_window->isMaximized()) {
        // Keep the cursor at the same relative place of the restored window. With no
        // normal size saved yet the width is -1 and the window jumps; callers save one
        // through their showFullWindow first.
        grabPoint.ry() = event->pos().y() + 10;
        grabPoint.rx() = event->pos().x() * normalSize.width() / m_window->width();
        m_window->showNormal();
    } else if (isAtSnapEdge(global)) {
        if (QScreen* screen = QGuiApplication::screenAt(global)) {
            preview->setGeometry(screen->availableGeometry().adjusted(5, 0, -5, -5));
            preview->show();
        }
    } else {
        preview->hide();
    }
    m_window->move(global - grabPoint);
}

void FrameDrag::end(const QPoint& globalPos, bool snap)
{
    if (snap && isAtSnapEdge(globalPos))
        saveNormalSizeAndMaximize();
    pressed = false;
    preview->hide();
}

void FrameDrag::saveNormalSizeAndMaximize()
{
    normalSize = m_window->size();
    m_window->showMaximized();
}

} // namespace vorlin
