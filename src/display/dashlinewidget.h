#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

// A translucent frameless window drawing an outline, to be placed over any rectangle of
// the screen (e.g. to mark where a dragged panel will dock). Hidden until showRect().
class VORLIN_EXPORT DashlineWidget : public QWidget
{
    Q_OBJECT
public:
    explicit DashlineWidget(QWidget* parent = nullptr);

    QColor color() const { return m_color; }
    // Takes effect with the next paint; does not repaint by itself.
    void setColor(QColor color);
    // Covers the rectangle (global coordinates) and shows the window if it is hidden.
    void showRect(QRect rect);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QColor m_color{220, 220, 220, 180};
};
