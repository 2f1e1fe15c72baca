#include "waitingdialog.h"

#include <QtGui/QPainter>

WaitingDialog::WaitingDialog(QWidget* parent, const QColor& dotColor)
    : QDialog(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_dotColor(dotColor)
{
    resize(200, 200);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setAttribute(Qt::WA_TranslucentBackground); // only the dots are visible
    m_stepTimer.setSingleShot(true);
    m_stepTimer.setTimerType(Qt::CoarseTimer);
    m_stepTimer.setInterval(150);
    connect(&m_stepTimer, &QTimer::timeout, this, &WaitingDialog::advance);
}

void WaitingDialog::startAnimation()
{
    if (m_running)
        return;
    m_running = true;
    m_stepTimer.start();
}

void WaitingDialog::stopAnimation()
{
    m_running = false;
    m_stepTimer.stop();
}

void WaitingDialog::advance()
{
    if (!m_running)
        return;
    m_step = (m_step + 1) % 10;
    update();
    m_stepTimer.start();
}

void WaitingDialog::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_dotColor);
    painter.setWindow(-150, -150, 300, 300);
    for (int i = 0; i < 10; ++i) {
        painter.save();
        painter.rotate(-36.0 * i);
        const qreal side = (10 - (m_step + i) % 10) * 4;
        painter.drawEllipse(QRectF(0, -100, side, side));
        painter.restore();
    }
}
