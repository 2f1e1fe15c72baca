#include "batterypowerlabel.h"

#include <QtGui/QPainter>

BatteryPowerLabel::BatteryPowerLabel(QWidget* parent)
    : QWidget(parent)
    , m_battery(QStringLiteral(":/new_png/icon_monitor_detail_battery.png"))
{
    setFixedSize(36, 20);
}

void BatteryPowerLabel::setValue(int value)
{
    if (uint(value) > 100 || value == m_value)
        return;
    m_value = value;
    update();
}

void BatteryPowerLabel::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing);
    const int x0 = (width() - m_battery.width()) / 2;
    const int y0 = (height() - m_battery.height()) / 2;
    painter.drawPixmap(x0, y0, m_battery);
    // The outline's wall and the gap inside it take two pixels on each side, and its
    // terminal two more on the right.
    const QColor charge(0x12, 0xC4, 0x7A);
    painter.setPen(charge);
    painter.setBrush(charge);
    painter.drawRect(x0 + 2, y0 + 2, m_value * (m_battery.width() - 6) / 100, m_battery.height() - 4);
    painter.setPen(Qt::white);
    painter.drawText(rect(), Qt::AlignCenter, QString::asprintf("%.2d%%", m_value));
}
