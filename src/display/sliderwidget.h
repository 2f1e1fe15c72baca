#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QWidget>

class SliderMarker;

// A small dark rounded panel holding one vertical SliderMarker, e.g. a volume or zoom
// control floating over a view.
class VORLIN_EXPORT SliderWidget : public QWidget
{
    Q_OBJECT
public:
    explicit SliderWidget(QWidget* parent = nullptr);

    SliderMarker* slider() const { return m_slider; }

protected:
    // Shows the value as a tool tip while the slider moves.
    void slot_SliderMove(int value);

private:
    SliderMarker* m_slider;
};
