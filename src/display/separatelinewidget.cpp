#include "separatelinewidget.h"

#include <QtGui/QPainter>

SeparateLineWidget::SeparateLineWidget(QWidget* parent)
    : QWidget(parent)
{
}

void SeparateLineWidget::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void SeparateLineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_color);
}
