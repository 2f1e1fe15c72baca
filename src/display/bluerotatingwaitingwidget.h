#pragma once

#include "rotatingwaitingwidget.h"

// The rotating loading glyph on the blue of the application's blue-themed panels.
class VORLIN_EXPORT BlueRotatingWaitingWidget : public RotatingWaitingWidget
{
    Q_OBJECT
public:
    explicit BlueRotatingWaitingWidget(QWidget* parent = nullptr);
};
