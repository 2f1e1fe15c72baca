#include "yellowiconbutton.h"

YellowIconButton::YellowIconButton(QWidget* parent)
    : IconTextButton(parent)
{
    setBackgroundColor(QColor(230, 130, 16), QColor(220, 120, 6), QColor(201, 107, 0), QColor(241, 241, 241));
}

YellowIconButton::~YellowIconButton() = default;
