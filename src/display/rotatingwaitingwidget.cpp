#include "rotatingwaitingwidget.h"

#include <QtGui/QPainter>

RotatingWaitingWidget::RotatingWaitingWidget(QWidget* parent)
    : QWidget(parent)
    , m_picture(QStringLiteral(":/state_icon/icon_loading.png"))
{
    m_timer.setInterval(100);
    connect(&m_timer, &QTimer::timeout, this, &RotatingWaitingWidget::rotate);
}

void RotatingWaitingWidget::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

void RotatingWaitingWidget::showEvent(QShowEvent* event)
{
    m_angle = 0;
    m_timer.start();
    QWidget::showEvent(event);
}

void RotatingWaitingWidget::hideEvent(QHideEvent* event)
{
    m_timer.stop();
    QWidget::hideEvent(event);
}

void RotatingWaitingWidget::rotate()
{
    // Ten steps of 36 degrees: one turn per second.
    m_angle = int(m_angle + 36) % 360;
    update();
}

void RotatingWaitingWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), m_backgroundColor);
    painter.translate(width() / 2, height() / 2);
    painter.rotate(m_angle);
    painter.translate(-width() * 0.5, -height() * 0.5);
    painter.drawPixmap((width() - m_picture.width()) / 2, (height() - m_picture.height()) / 2, m_picture);
}
