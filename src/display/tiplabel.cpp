#include "tiplabel.h"

#include <QtCore/QEvent>

TipLabel::TipLabel(const QString& text, QWidget* parent)
    : TipLabel(parent)
{
    setText(text);
}

TipLabel::TipLabel(QWidget* parent)
    : QLabel(parent)
{
    m_showTimer.setSingleShot(true);
    m_showTimer.setInterval(150);
    connect(&m_showTimer, &QTimer::timeout, this, &TipLabel::showTips);
    m_checkTimer.setSingleShot(true);
    m_checkTimer.setInterval(100);
    connect(&m_checkTimer, &QTimer::timeout, this, &TipLabel::checkMousePosition);
    installEventFilter(this);
}

TipLabel::~TipLabel()
{
    if (m_tipWidget)
        m_tipWidget->deleteLater();
}

void TipLabel::setTipWidget(QWidget* widget)
{
    m_tipWidget = widget;
    if (widget)
        widget->installEventFilter(this);
}

void TipLabel::setTipShowPos(E_TIP_SHOW_POS position)
{
    m_showPos = position;
}

void TipLabel::setTipWidgetIsHAligned(bool aligned)
{
    m_hAligned = aligned;
}

bool TipLabel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == this) {
        if (event->type() == QEvent::Enter) {
            m_showTimer.start();
            return true;
        }
        if (event->type() == QEvent::Leave) {
            m_checkTimer.start();
            m_showTimer.stop();
            return true;
        }
    } else if (watched == m_tipWidget && event->type() == QEvent::Leave) {
        m_tipWidget->hide();
        return true;
    }
    return QLabel::eventFilter(watched, event);
}

void TipLabel::checkMousePosition()
{
    // Leaving the label hides the tip unless the mouse went onto the tip itself.
    if (m_tipWidget && !m_tipWidget->underMouse())
        m_tipWidget->hide();
}

void TipLabel::showTips()
{
    if (!m_tipWidget || !isEnabled())
        return;
    m_tipWidget->show();
    const int right = width() - 1;
    const int bottom = height() - 1;
    const int tipWidth = m_tipWidget->width();
    const int tipHeight = m_tipWidget->height();
    QPoint topLeft(right, bottom);
    switch (m_showPos) {
    case TipBottomRight:
        topLeft = {right, m_hAligned ? bottom - height() : bottom};
        break;
    case TipBottomLeft:
        topLeft = {right - tipWidth - width(), m_hAligned ? bottom - height() : bottom};
        break;
    case TipTopRight:
        topLeft = {right, m_hAligned ? bottom - tipHeight : bottom - tipHeight - height()};
        break;
    case TipTopLeft:
        topLeft = {right - tipWidth - width(), m_hAligned ? bottom - tipHeight : bottom - tipHeight - height()};
        break;
    }
    m_tipWidget->move(mapToGlobal(topLeft));
}
