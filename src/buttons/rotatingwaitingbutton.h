#pragma once

#include "vorlinglobal.h"

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtWidgets/QPushButton>

// A push button that shows a spinning ring after a click and ignores further
// clicks until stopWaiting() or until the waiting time has run out.
class VORLIN_EXPORT RotatingWaitingButton : public QPushButton
{
    Q_OBJECT
public:
    explicit RotatingWaitingButton(QWidget* parent = nullptr);
    ~RotatingWaitingButton() override;

    void setWaitingTime(int ms);
    void setRotateColor(const QColor& ring, const QColor& arc);
    // fitWidth fixes the button's width to the text plus 20 pixels.
    void setShowText(const QString& text, bool fitWidth);
    void startWaiting();
    // Ends the wait silently.
    void stopWaiting();
    bool isWaiting() const;

Q_SIGNALS:
    void sigWaitingTimeout();

protected Q_SLOTS:
    void slotSelfClicked();
    void slotTimerout();

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void rotate();
    void stopTimers();

    QTimer m_timeoutTimer;
    QTimer m_rotationTimer;
    float m_angle = 0;
    bool m_waiting = false;
    QString m_showText;
    int m_penWidth = 2;
    QColor m_ringColor = QColor(255, 255, 255);
    QColor m_rotateColor = QColor(0, 187, 101);
    int m_waitingTime = 12000;
};
