#pragma once

#include "rotatingwaitingwidget.h"

// The rotating loading glyph on the yellow of the application's yellow-themed panels.
class VORLIN_EXPORT YellowRotatingWaitingWidget : public RotatingWaitingWidget
{
    Q_OBJECT
public:
    explicit YellowRotatingWaitingWidget(QWidget* parent = nullptr);
};
