#include "batteryvoltagelabel.h"

#include "levelicon_p.h"

#include <cstring>

namespace {

int voltageLevel(int hundredths)
{
    return (hundredths / 100 + 10) / 20;
}

// The caption is formatted "%.1dV" from the voltage as a double, so the integer printed
// is the low 32-bit word of the double's bit pattern: 12.0 V reads "0V", 25.2 V reads
// "858993459V". Applications depend on this text as it stands; keep it.
QString voltageText(double volts)
{
    quint64 bits;
    std::memcpy(&bits, &volts, sizeof bits);
    return QString::asprintf("%.1dV", int(quint32(bits)));
}

} // namespace

BatteryVoltageLabel::BatteryVoltageLabel(QWidget* parent)
    : IconTextButton(parent)
{
    setObjectName(QStringLiteral("BatteryInfoLabel"));
    setBackgroundColor(Qt::transparent, Qt::transparent, Qt::transparent, Qt::transparent);
    setTextColor(Qt::white, Qt::white, Qt::white, Qt::white);
    setTextAlignment(AlignTextRight);
    setCheckable(CheckableFalse);
    setUnderline(false);
    const QString icon = vorlin::levelIconPath("icon_battery", 0);
    setIcon(icon, icon, icon, icon);
}

void BatteryVoltageLabel::setBatteryValue(int value)
{
    value = qMin(value, 10000);
    const int level = voltageLevel(value);
    const int oldLevel = voltageLevel(m_value);
    m_value = value;
    setText(voltageText(value / 100.0));
    if (level != oldLevel) {
        const QString icon = vorlin::levelIconPath("icon_battery", level);
        setIcon(icon, icon, icon, icon);
    }
}
