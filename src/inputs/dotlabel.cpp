#include "dotlabel.h"

#include <QtGui/QPainter>

DotLabel::DotLabel(QWidget* parent)
    : QWidget(parent)
{
    setMinimumSize(8, 8);
}

void DotLabel::setDotRadius(int radius)
{
    if (radius < 2 || radius == m_radius)
        return;
    m_radius = radius;
    setMinimumSize(2 * radius + 2, 2 * radius + 2);
    update();
}

void DotLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QBrush(Qt::black, Qt::SolidPattern));
    painter.drawEllipse(QPointF(width() / 2, height() / 2), m_radius, m_radius);
}
