#pragma once

#include "icontextbutton.h"

// A small white 52 x 22 button with a check-mark icon, greyed when disabled.
class VORLIN_EXPORT IconCheckButton : public IconTextButton
{
    Q_OBJECT
public:
    explicit IconCheckButton(QWidget* parent = nullptr);
    ~IconCheckButton() override;
};
