#pragma once

#include "icontextbutton.h"

#include <QtCore/QTimer>

// A button that locks itself after a click and counts down ("60 s", "59 s", ...)
// before it can be clicked again.
class VORLIN_EXPORT DelayButton : public IconTextButton
{
    Q_OBJECT
public:
    explicit DelayButton(QWidget* parent = nullptr);
    ~DelayButton() override;

    // Seconds of the count-down started by the next click.
    void setMaxCount(int count);
    // Stops a running count-down without a signal.
    void resetDelayButton();

Q_SIGNALS:
    void sigDelayButtonClicked();
    void sigDelayButtonTimeout();

protected Q_SLOTS:
    void timerStart();
    void timerStop();
    void slotSelfClicked();
    void slotTimerout();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void setIsGradient(bool gradient);

    QTimer m_timer;
    bool m_counting = false;
    int m_count = 0;
    int m_maxCount = 60;
    bool m_gradient = true;
};
