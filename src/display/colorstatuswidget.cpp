#include "colorstatuswidget.h"

#include <QtCore/QDebug>
#include <QtCore/QEvent>
#include <QtGui/QPainter>

ColorStatusWidget::ColorStatusWidget(QWidget* parent)
    : QWidget(parent)
{
}

void ColorStatusWidget::addState(int state, QColor color, const QString& tip)
{
    mapColorTips.insert(state, qMakePair(color, tip));
}

void ColorStatusWidget::setState(int state)
{
    m_state = state;
    const auto entry = mapColorTips.constFind(state);
    if (entry == mapColorTips.constEnd()) {
        // The line is fixed text: the "1%" is not a placeholder and the state is not inserted.
        qDebug().noquote() << "invalid state 1%. it's not in mapColorTips.";
        return;
    }
    setToolTip(entry->second);
    update();
}

void ColorStatusWidget::setEnabledToolTip(bool enabled)
{
    m_toolTipEnabled = enabled;
}

bool ColorStatusWidget::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !m_toolTipEnabled)
        return true;
    return QWidget::event(event);
}

void ColorStatusWidget::paintEvent(QPaintEvent*)
{
    const auto entry = mapColorTips.constFind(m_state);
    if (entry == mapColorTips.constEnd())
        return;
    const int d = qMin(width(), height());
    const QRect square((width() - d) / 2, (height() - d) / 2, d, d);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::transparent);
    painter.setBrush(entry->first);
    painter.drawEllipse(square.adjusted(1, 1, -1, -1));
}
