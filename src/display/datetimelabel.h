#pragma once

#include "vorlinglobal.h"

#include <QtCore/QTimer>
#include <QtWidgets/QLabel>

// A clock showing the time of day as "HH:mm:ss". It ticks shortly after each whole
// second so the text never lags a visible second behind.
class VORLIN_EXPORT DateTimeLabel : public QLabel
{
    Q_OBJECT
public:
    explicit DateTimeLabel(QWidget* parent = nullptr);

    // Kept for applications that call it; the clock always runs.
    void EnabledUpdateTime(bool enabled);

private:
    void updateTime();

    QTimer m_tick;
};
