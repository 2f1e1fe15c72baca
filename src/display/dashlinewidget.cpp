#include "dashlinewidget.h"

#include <QtGui/QPainter>

DashlineWidget::DashlineWidget(QWidget* parent)
    : QWidget(parent, Qt::Tool | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_TranslucentBackground);
    hide();
}

void DashlineWidget::setColor(QColor color)
{
    m_color = color;
}

void DashlineWidget::showRect(QRect rect)
{
    setGeometry(rect);
    if (!isVisible())
        show();
}

void DashlineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    // A solid outline, whatever the class name suggests.
    QPen pen = painter.pen();
    pen.setWidth(8);
    pen.setColor(m_color);
    painter.setPen(pen);
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(rect());
}
