#include "roundwaitwidget.h"

#include "ring_p.h"

#include <QtCore/QEvent>
#include <QtGui/QPainter>

RoundWaitWidget::RoundWaitWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    m_timer.setInterval(5);
    connect(&m_timer, &QTimer::timeout, this, &RoundWaitWidget::rotate);
}

void RoundWaitWidget::setRotateRingColor(const QColor& arcColor, const QColor& trackColor)
{
    m_arcColor = arcColor;
    m_trackColor = trackColor;
}

void RoundWaitWidget::setRotateRingWidth(int width)
{
    m_ringWidth = qMax(0, width);
    update();
}

bool RoundWaitWidget::event(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void RoundWaitWidget::showEvent(QShowEvent* event)
{
    m_angle = 0;
    m_timer.start();
    QWidget::showEvent(event);
}

void RoundWaitWidget::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void RoundWaitWidget::rotate()
{
    m_angle = (int(m_angle) + 1) % 360;
    update();
}

void RoundWaitWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect ring = vorlin::beginRing(painter, this, m_ringWidth);
    QPen pen = painter.pen();
    pen.setColor(m_trackColor);
    painter.setPen(pen);
    painter.drawArc(ring, 0, -360 * 16);
    pen.setColor(m_arcColor);
    painter.setPen(pen);
    // Qt's angles run counter-clockwise: a negative start moves the arc clockwise.
    painter.drawArc(ring, int(m_angle * -16), 90 * 16);
}
