#pragma once

#include "framedrag_p.h"

#include <QtCore/QString>

class QMouseEvent;
class QWidget;

namespace vorlin {

// What the movable dialog and widget share: dragging from anywhere off the resize band,
// with a cursor image of their own, and edge resizing that can be switched off.
class MovableFrame
{
public:
    MovableFrame(QWidget* window, const QSize& normalSize, const QString& dragCursorImage);

    bool moveZoomEnabled = true;
    FrameDrag drag;
    int resizeBorderWidth = 8;

    int hitTest(const QPoint& pos) const;
    void press(QMouseEvent* event);
    void move(QMouseEvent* event);
    void release(QMouseEvent* event);

private:
    QWidget* m_window;
    QString m_dragCursorImage;
};

// Adds or removes the stays-on-top hint; a visible window is shown again afterwards,
// since changing the flags hides it.
void setStaysOnTopHint(QWidget* window, bool onTop);

} // namespace vorlin
