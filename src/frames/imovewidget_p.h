#pragma once

#include "movableframe_p.h"

#include <QtGui/QColor>

class IMoveWidgetImpl : public vorlin::MovableFrame
{
public:
    using MovableFrame::MovableFrame;

    QColor borderColor{80, 80, 80, 100};
    int borderWidth = 1;
};
