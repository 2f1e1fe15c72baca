#pragma once

#include "movableframe_p.h"

class IMoveDialogImpl : public vorlin::MovableFrame
{
public:
    using MovableFrame::MovableFrame;
};
