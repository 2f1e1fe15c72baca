#include "separatelinewidget.h"

#include <QtCore/QEvent>
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

// A line paints its colour and nothing else, so the style has nothing to give it. Under a
// style-sheeted parent (a table's scroll area) the polish would still compute the whole
// cascade for every line; tables show hundreds of them.
bool SeparateLineWidget::event(QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        setAttribute(Qt::WA_WState_Polished);
        return true;
    }
    return QWidget::event(event);
}

void SeparateLineWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_color);
}
