#pragma once

#include <QtCore/QCoreApplication>
#include <QtGui/QColor>
#include <QtGui/QImage>
#include <QtGui/QMouseEvent>
#include <QtGui/QPixmap>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace buttontest {

inline QImage render(QWidget* widget)
{
    return widget->grab().toImage();
}

inline QColor pixel(QWidget* widget, int x, int y)
{
    return render(widget).pixelColor(x, y);
}

// Colours compared with a small tolerance for antialiasing and blending.
inline bool near(const QColor& a, const QColor& b, int tolerance = 8)
{
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance
        && qAbs(a.blue() - b.blue()) <= tolerance;
}

inline QPixmap solid(int w, int h, const QColor& color)
{
    QPixmap pixmap(w, h);
    pixmap.fill(color);
    return pixmap;
}

inline void sendEnter(QWidget* widget)
{
    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(widget, &enter);
}

inline void sendLeave(QWidget* widget)
{
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(widget, &leave);
}

// Records the mouse presses that reach it, e.g. ones its children ignored.
class PressRecorder : public QWidget
{
public:
    int presses = 0;

protected:
    void mousePressEvent(QMouseEvent*) override { ++presses; }
    void mouseReleaseEvent(QMouseEvent*) override {}
};

} // namespace buttontest
