#include "rotatingwaitingbutton.h"

#include <QtCore/QEvent>
#include <QtGui/QFontMetrics>
#include <QtGui/QPainter>

RotatingWaitingButton::RotatingWaitingButton(QWidget* parent)
    : QPushButton(parent)
{
    m_timeoutTimer.setInterval(m_waitingTime);
    m_rotationTimer.setInterval(3);
    connect(&m_timeoutTimer, &QTimer::timeout, this, &RotatingWaitingButton::slotTimerout);
    connect(this, &QPushButton::clicked, this, &RotatingWaitingButton::slotSelfClicked);
    connect(&m_rotationTimer, &QTimer::timeout, this, &RotatingWaitingButton::rotate);
}

RotatingWaitingButton::~RotatingWaitingButton() = default;

void RotatingWaitingButton::setWaitingTime(int ms)
{
    m_waitingTime = ms;
    m_timeoutTimer.setInterval(ms);
}

void RotatingWaitingButton::setRotateColor(const QColor& ring, const QColor& arc)
{
    m_ringColor = ring;
    m_rotateColor = arc;
    update();
}

void RotatingWaitingButton::setShowText(const QString& text, bool fitWidth)
{
    m_showText = text;
    if (fitWidth)
        setFixedWidth(QFontMetrics(font()).horizontalAdvance(text) + 20);
    update();
}

void RotatingWaitingButton::startWaiting()
{
    m_rotationTimer.start();
    m_angle = 0;
    m_timeoutTimer.start();
    m_waiting = true;
}

void RotatingWaitingButton::stopWaiting()
{
    stopTimers();
    update();
}

bool RotatingWaitingButton::isWaiting() const
{
    return m_waiting;
}

void RotatingWaitingButton::slotSelfClicked()
{
    if (m_waiting)
        return;
    startWaiting();
    update();
}

void RotatingWaitingButton::slotTimerout()
{
    if (!m_waiting)
        return;
    stopTimers();
    update();
    Q_EMIT sigWaitingTimeout();
}

void RotatingWaitingButton::rotate()
{
    m_angle = static_cast<float>((static_cast<int>(m_angle + 1.0f)) % 360);
    update();
}

void RotatingWaitingButton::stopTimers()
{
    m_timeoutTimer.stop();
    m_rotationTimer.stop();
    m_waiting = false;
}

bool RotatingWaitingButton::event(QEvent* event)
{
    // A busy button swallows clicks so that they reach neither it nor its parent.
    if (m_waiting) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            return true;
        default:
            break;
        }
    }
    return QPushButton::event(event);
}

void RotatingWaitingButton::paintEvent(QPaintEvent* event)
{
    QPushButton::paintEvent(event);
    QPainter painter(this);
    if (!m_waiting) {
        painter.drawText(rect(), Qt::AlignCenter, m_showText);
        return;
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.translate(width() / 2, height() / 2);
    painter.rotate(-90);
    const int side = qMin(width(), height()) - (2 * m_penWidth + 10);
    const QRect square(-side / 2, -side / 2, side, side);
    QPen pen(m_ringColor, m_penWidth);
    painter.setPen(pen);
    painter.drawArc(square, 0, -5760);
    pen.setColor(m_rotateColor);
    painter.setPen(pen);
    painter.drawArc(square, static_cast<int>(-16 * m_angle), 1440);
}
