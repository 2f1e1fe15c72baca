#include "blueiconbutton.h"

BlueIconButton::BlueIconButton(QWidget* parent)
    : IconTextButton(parent)
{
    setBackgroundColor(QColor(18, 99, 196), QColor(13, 90, 182), QColor(10, 83, 170), QColor(241, 241, 241));
}

BlueIconButton::~BlueIconButton() = default;
