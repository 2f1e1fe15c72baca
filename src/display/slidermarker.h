#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QSlider>

// A slider that jumps straight to the clicked point and shows its value as a tool tip.
class VORLIN_EXPORT SliderMarker : public QSlider
{
    Q_OBJECT
public:
    explicit SliderMarker(Qt::Orientation orientation, QWidget* parent = nullptr);

public Q_SLOTS:
    void slot_SliderMove(int iValue);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    // Moves the slider under the cursor while the left button is held.
    void changeSliderPosition(QMouseEvent* event);
};
