#pragma once

#include "vorlinglobal.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QWidget>

// A small battery gauge: the battery outline filled in green to the charge, with the
// percentage written over it.
class VORLIN_EXPORT BatteryPowerLabel : public QWidget
{
    Q_OBJECT
public:
    explicit BatteryPowerLabel(QWidget* parent = nullptr);

    // Values outside 0..100 are ignored.
    void setValue(int value);
    int value() const { return m_value; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QPixmap m_battery;
    int m_value = 0;
};
