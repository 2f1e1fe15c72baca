#pragma once

#include "icontextbutton.h"

// The battery voltage with a level icon (six steps, 0% to 100%), for title and monitor
// bars. The level icons ":/title_info/icon_battery_<n>%.png" come from the application's
// own resources.
class VORLIN_EXPORT BatteryVoltageLabel : public IconTextButton
{
    Q_OBJECT
public:
    explicit BatteryVoltageLabel(QWidget* parent = nullptr);

    // The value is in hundredths of a volt; values above 10000 count as 10000.
    void setBatteryValue(int value);
    int batteryValue() const { return m_value; }

private:
    int m_value = 0;
};
