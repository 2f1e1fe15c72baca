#pragma once

#include "vorlinglobal.h"

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

// A quarter arc running clockwise round a ring, while shown. Swallows mouse presses so
// a click on a busy area does not reach what lies below.
class VORLIN_EXPORT RoundWaitWidget : public QWidget
{
    Q_OBJECT
public:
    explicit RoundWaitWidget(QWidget* parent = nullptr);

    // Takes effect with the next frame of the animation.
    void setRotateRingColor(const QColor& arcColor, const QColor& trackColor);
    void setRotateRingWidth(int width);

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void rotate();

    int m_ringWidth = 5;
    QTimer m_timer;
    float m_angle = 0;
    QColor m_arcColor{0xD0, 0xD0, 0xD0};
    QColor m_trackColor = Qt::black;
};
