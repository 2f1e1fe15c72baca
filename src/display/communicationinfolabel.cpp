#include "communicationinfolabel.h"

#include "levelicon_p.h"

#include <QtGui/QMouseEvent>

CommunicationInfoLabel::CommunicationInfoLabel(QWidget* parent)
    : IconTextButton(parent)
{
    setObjectName(QStringLiteral("CommunicationInfoLabel"));
    setBackgroundColor(Qt::transparent, Qt::transparent, Qt::transparent, Qt::transparent);
    setTextColor(Qt::white, Qt::white, Qt::white, Qt::white);
    setTextAlignment(AlignTextRight);
    setCheckable(CheckableFalse);
    setUnderline(false);
    const QString icon = vorlin::levelIconPath("icon_communication", 0);
    setIcon(icon, icon, icon, icon);
}

void CommunicationInfoLabel::setValue(int iVal)
{
    const int value = qMin(iVal, 100);
    // The new level is taken with an offset of 20 and the previous one with 10, so 0..19
    // already show the 20% icon and only negative values the 0% one, and a change
    // between levels can leave the icon stale (25 -> 15). This is the established rule.
    const int level = (value + 20) / 20;
    const int oldLevel = (m_value + 10) / 20;
    m_value = value;
    setText(QString::number(value) + QLatin1Char('%'));
    if (level != oldLevel) {
        const QString icon = vorlin::levelIconPath("icon_communication", level);
        setIcon(icon, icon, icon, icon);
    }
}

void CommunicationInfoLabel::enterEvent(QEvent* event)
{
    event->ignore();
}

void CommunicationInfoLabel::leaveEvent(QEvent* event)
{
    event->ignore();
}

void CommunicationInfoLabel::mousePressEvent(QMouseEvent* event)
{
    event->ignore();
}

void CommunicationInfoLabel::mouseReleaseEvent(QMouseEvent* event)
{
    event->ignore();
}
