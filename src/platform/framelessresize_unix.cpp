#include "framelessresize.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtCore/QPointer>
#include <QtGui/QMouseEvent>
#include <QtGui/QWindow>
#include <QtWidgets/QWidget>

namespace vorlin {
namespace platform {

namespace {

// Windows hit-test codes, as the band tests answer them.
enum : int { HitLeft = 10, HitRight, HitTop, HitTopLeft, HitTopRight, HitBottom, HitBottomLeft, HitBottomRight };

Qt::Edges edgesFor(int hit)
{
    switch (hit) {
    case HitLeft: return Qt::LeftEdge;
    case HitRight: return Qt::RightEdge;
    case HitTop: return Qt::TopEdge;
    case HitBottom: return Qt::BottomEdge;
    case HitTopLeft: return Qt::TopEdge | Qt::LeftEdge;
    case HitTopRight: return Qt::TopEdge | Qt::RightEdge;
    case HitBottomLeft: return Qt::BottomEdge | Qt::LeftEdge;
    case HitBottomRight: return Qt::BottomEdge | Qt::RightEdge;
    default: return {};
    }
}

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    if (edges == (Qt::TopEdge | Qt::LeftEdge) || edges == (Qt::BottomEdge | Qt::RightEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::TopEdge | Qt::RightEdge) || edges == (Qt::BottomEdge | Qt::LeftEdge))
        return Qt::SizeBDiagCursor;
    return (edges & (Qt::LeftEdge | Qt::RightEdge)) ? Qt::SizeHorCursor : Qt::SizeVerCursor;
}

// Watches the native window of a frameless widget. Its events arrive there before they are
// handed to the child widget under the cursor, so the bands work over children too.
class EdgeResizer : public QObject
{
public:
    EdgeResizer(QWidget* window, EdgeHitTest hitTest)
        : QObject(window)
        , m_window(window)
        , m_hitTest(std::move(hitTest))
    {
        window->installEventFilter(this);
        watchNativeWindow();
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (watched == m_window) {
            // Changing the window flags replaces the native window.
            if (event->type() == QEvent::Show || event->type() == QEvent::WinIdChange)
                watchNativeWindow();
            return false;
        }
        if (watched != m_native)
            return false;
        switch (event->type()) {
        case QEvent::MouseMove:
            return mouseMove(static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonPress:
            return mousePress(static_cast<QMouseEvent*>(event));
        case QEvent::MouseButtonRelease:
            return mouseRelease();
        case QEvent::Leave:
            if (!m_resizing)
                restoreCursor(QPoint(-1, -1));
            return false;
        default:
            return false;
        }
    }

private:
    void watchNativeWindow()
    {
        QWindow* native = m_window->windowHandle();
        if (native == m_native)
            return;
        if (m_native)
            m_native->removeEventFilter(this);
        m_native = native;
        m_bandCursor = false;
        if (m_native)
            m_native->installEventFilter(this);
    }

    bool mousePress(QMouseEvent* event)
    {
        if (event->button() != Qt::LeftButton)
            return false;
        const Qt::Edges edges = edgesFor(m_hitTest(event->pos()));
        if (!edges)
            return false;
        if (!m_native->startSystemResize(edges)) {
            // No window manager to do it: follow the mouse ourselves until the release.
            m_resizing = edges;
            m_pressGlobal = event->globalPos();
            m_startGeometry = m_window->geometry();
        }
        return true;
    }

    bool mouseMove(QMouseEvent* event)
    {
        if (m_resizing) {
            m_window->setGeometry(resizedGeometry(event->globalPos() - m_pressGlobal));
            return true;
        }
        if (event->buttons() != Qt::NoButton)
            return false;
        const Qt::Edges edges = edgesFor(m_hitTest(event->pos()));
        if (edges) {
            m_native->setCursor(cursorFor(edges));
            m_bandCursor = true;
        } else if (m_bandCursor) {
            restoreCursor(event->pos());
        }
        return false;
    }

    bool mouseRelease()
    {
        if (!m_resizing)
            return false;
        m_resizing = {};
        return true;
    }

    // Gives the window back the cursor of the widget under pos.
    void restoreCursor(const QPoint& pos)
    {
        if (!m_bandCursor)
            return;
        m_bandCursor = false;
        QWidget* under = m_window->childAt(pos);
        m_native->setCursor((under ? under : m_window.data())->cursor());
    }

    QRect resizedGeometry(const QPoint& delta) const
    {
        const QSize minimum = m_window->minimumSize().expandedTo(QSize(1, 1));
        const QSize maximum = m_window->maximumSize();
        QRect r = m_startGeometry;
        if (m_resizing & Qt::LeftEdge)
            r.setLeft(qBound(r.right() + 1 - maximum.width(), r.left() + delta.x(), r.right() + 1 - minimum.width()));
        if (m_resizing & Qt::RightEdge)
            r.setWidth(qBound(minimum.width(), r.width() + delta.x(), maximum.width()));
        if (m_resizing & Qt::TopEdge)
            r.setTop(qBound(r.bottom() + 1 - maximum.height(), r.top() + delta.y(), r.bottom() + 1 - minimum.height()));
        if (m_resizing & Qt::BottomEdge)
            r.setHeight(qBound(minimum.height(), r.height() + delta.y(), maximum.height()));
        return r;
    }

    QPointer<QWidget> m_window;
    QPointer<QWindow> m_native;
    EdgeHitTest m_hitTest;
    bool m_bandCursor = false;
    Qt::Edges m_resizing;
    QPoint m_pressGlobal;
    QRect m_startGeometry;
};

} // namespace

void installFramelessResize(QWidget* window, EdgeHitTest hitTest)
{
    new EdgeResizer(window, std::move(hitTest));
}

bool answerNativeHitTest(QWidget*, void*, long*, const EdgeHitTest&)
{
    return false;
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
