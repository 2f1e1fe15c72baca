#pragma once

#include <QtCore/QPoint>
#include <QtCore/QPointer>
#include <QtCore/QSize>

class QMouseEvent;
class QWidget;
class ShadowWidget;

namespace vorlin {

// Moving a frameless top-level window with the mouse, shared by the main window and the
// movable frames: dragging a maximised window restores it under the cursor, and holding
// the cursor in the top two pixel rows of the screen previews, then on release performs,
// the snap to maximised.
class FrameDrag
{
public:
    FrameDrag(QWidget* window, const QSize& normalSize);

    bool pressed = false;
    QPoint grabPoint;   // cursor position inside the window when the drag began
    QSize normalSize;   // size saved just before the window is maximised
    QPointer<ShadowWidget> preview;

    void begin(const QPoint& grab);
    // Follows the cursor; call only while pressed.
    void follow(const QMouseEvent* event);
    // Ends the drag; a release at the top edge snaps to maximised unless snapping is off.
    void end(const QPoint& globalPos, bool snap = true);
    void saveNormalSizeAndMaximize();

    static bool isAtSnapEdge(const QPoint& globalPos) { return globalPos.y() < 2; }

private:
    QWidget* m_window;
};

} // namespace vorlin
