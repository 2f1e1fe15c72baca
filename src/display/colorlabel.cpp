#include "colorlabel.h"

#include "roundedpath_p.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

ColorLabel::ColorLabel(const QString& text, QWidget* parent)
    : ColorLabel(parent)
{
    setText(text);
}

ColorLabel::ColorLabel(QWidget* parent)
    : QLabel(parent)
{
    setObjectName(QStringLiteral("ColorLabel"));
    setAutoFillBackground(true);
    setWordWrap(false);
    setMargin(6);
}

void ColorLabel::setText(const QString& text)
{
    m_originText = text;
    setToolTip(text);
    const int available = width() - 2 * margin();
    QLabel::setText(fontMetrics().elidedText(text, Qt::ElideRight, available));
}

void ColorLabel::setTextColor(const QColor& color)
{
    setAutoFillBackground(true);
    QPalette palette = this->palette();
    palette.setBrush(QPalette::All, foregroundRole(), QBrush(color));
    setPalette(palette);
}

void ColorLabel::setBackgroundColor(bool enabled, const QColor& color)
{
    m_ownBackground = enabled;
    m_backgroundColor = color;
    update();
}

void ColorLabel::setRadius(int radius)
{
    m_radius = radius;
    update();
}

void ColorLabel::enableClicked(bool clickable)
{
    m_clickable = clickable;
}

void ColorLabel::setEnabledToolTip(bool enabled)
{
    m_toolTipEnabled = enabled;
}

bool ColorLabel::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !m_toolTipEnabled)
        return true;
    return QLabel::event(event);
}

void ColorLabel::paintEvent(QPaintEvent* event)
{
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        const QColor color = m_ownBackground ? m_backgroundColor : palette().color(QPalette::Window);
        vorlin::fillRoundedRect(painter, rect(), qAbs(m_radius), color);
    }
    QLabel::paintEvent(event);
}

void ColorLabel::resizeEvent(QResizeEvent* event)
{
    QLabel::resizeEvent(event);
    setText(m_originText);
}

void ColorLabel::mousePressEvent(QMouseEvent* event)
{
    QLabel::mousePressEvent(event);
    event->setAccepted(event->button() == Qt::LeftButton);
}

void ColorLabel::mouseReleaseEvent(QMouseEvent* event)
{
    QLabel::mouseReleaseEvent(event);
    if (event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    event->accept();
    if (m_clickable)
        Q_EMIT sigClicked();
}
