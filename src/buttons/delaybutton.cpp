#include "delaybutton.h"

#include "roundedpath_p.h"

#include <QtCore/QEvent>
#include <QtGui/QLinearGradient>
#include <QtGui/QPainter>

DelayButton::DelayButton(QWidget* parent)
    : IconTextButton(parent)
{
    m_timer.setInterval(1000);
    setFontPixelSize(12, QStringLiteral("Microsoft YaHei"), false);
    connect(this, &IconTextButton::sigClicked, this, &DelayButton::slotSelfClicked);
    connect(&m_timer, &QTimer::timeout, this, &DelayButton::slotTimerout);
}

DelayButton::~DelayButton() = default;

void DelayButton::setMaxCount(int count)
{
    m_maxCount = count;
}

void DelayButton::resetDelayButton()
{
    timerStop();
    update();
}

void DelayButton::timerStart()
{
    // Resumes from the current count and leaves the repaint to the next tick.
    m_timer.start();
    m_counting = true;
    setDisable(true);
    setIsGradient(false);
}

void DelayButton::timerStop()
{
    m_timer.stop();
    m_counting = false;
    setDisable(false);
    setIsGradient(true);
}

void DelayButton::slotSelfClicked()
{
    if (m_counting)
        return;
    m_count = m_maxCount;
    m_timer.start();
    m_counting = true;
    setDisable(true);
    setIsGradient(false);
    update();
    Q_EMIT sigDelayButtonClicked();
}

void DelayButton::slotTimerout()
{
    --m_count;
    if (m_count <= 0) {
        timerStop();
        Q_EMIT sigDelayButtonTimeout();
    }
    update();
}

void DelayButton::setIsGradient(bool gradient)
{
    m_gradient = gradient;
}

bool DelayButton::event(QEvent* event)
{
    // A counting button swallows clicks so that they reach neither it nor its parent.
    if (m_counting) {
        switch (event->type()) {
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            event->accept();
            return true;
        default:
            break;
        }
    }
    return IconTextButton::event(event);
}

void DelayButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing, true);

    QPixmap* icon = nullptr;
    QColor background = Qt::transparent;
    QColor textColor = palette().color(QPalette::WindowText);
    QColor borderColor = Qt::transparent;
    int borderWidth = 0;
    copyMemberValue(icon, background, textColor, borderColor, borderWidth);

    const QPainterPath path = vorlin::roundedRectPath(rect(), m_radius);
    if (m_gradient) {
        QLinearGradient gradient(0, 0, 0, rect().height());
        gradient.setColorAt(0, Qt::white);
        gradient.setColorAt(1.0, background);
        gradient.setSpread(QGradient::RepeatSpread);
        painter.setPen(Qt::NoPen);
        painter.setBrush(gradient);
        painter.drawRoundedRect(rect(), m_radius, m_radius);
    } else {
        painter.setPen(background);
        painter.fillPath(path, background);
    }

    painter.setBrush(Qt::NoBrush);
    painter.setPen(textColor);
    painter.drawText(rect(), Qt::AlignCenter,
                     m_counting ? QStringLiteral("%1 s").arg(m_count) : text());

    if (borderWidth > 0) {
        QPen pen = painter.pen();
        pen.setColor(borderColor);
        pen.setWidth(borderWidth);
        painter.setPen(pen);
        painter.drawPath(path);
    }
}
