#include "roundprogressbar.h"

#include "ring_p.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

RoundProgressBar::RoundProgressBar(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
}

void RoundProgressBar::setValue(int value)
{
    m_value = value;
    valueChanged();
}

void RoundProgressBar::setMaxValue(int maximum)
{
    if (maximum <= 0)
        return;
    m_maximum = maximum;
    valueChanged();
}

void RoundProgressBar::valueChanged()
{
    m_text = QStringLiteral("%1%").arg(m_value * 100 / m_maximum);
    update();
}

void RoundProgressBar::setProcessRingWidth(int width)
{
    m_ringWidth = qMax(0, width);
    update();
}

void RoundProgressBar::setProsessBarColor(const QColor& progress, const QColor& track, const QColor& text)
{
    m_progressColor = progress;
    m_trackColor = track;
    m_textColor = text;
}

void RoundProgressBar::setProsessBarColor(QString progress, QString track, QString text)
{
    setProsessBarColor(QColor(progress), QColor(track), QColor(text));
}

void RoundProgressBar::hideProcessText()
{
    m_showText = false;
}

bool RoundProgressBar::event(QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        event->accept();
        return true;
    }
    return QWidget::event(event);
}

void RoundProgressBar::mousePressEvent(QMouseEvent* event)
{
    QWidget::mousePressEvent(event);
    event->accept();
}

void RoundProgressBar::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void RoundProgressBar::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QRect ring = vorlin::beginRing(painter, this, m_ringWidth);
    // Capped at a full turn; a negative value sweeps backwards.
    const int sweep = qMin(m_value * 360 / m_maximum, 360);
    QPen pen = painter.pen();
    pen.setColor(m_trackColor);
    painter.setPen(pen);
    painter.drawArc(ring, 0, -360 * 16);
    pen.setColor(m_progressColor);
    painter.setPen(pen);
    painter.drawArc(ring, 0, -16 * sweep);

    painter.resetTransform();
    if (!m_showText)
        return;
    QFont font(QStringLiteral("Microsoft YaHei"));
    font.setPixelSize(16);
    painter.setFont(font);
    painter.setPen(m_textColor);
    painter.drawText(rect(), Qt::AlignCenter, m_text);
}
