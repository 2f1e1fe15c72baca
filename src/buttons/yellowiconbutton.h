#pragma once

#include "icontextbutton.h"

// An IconTextButton with the library's orange-yellow backgrounds.
class VORLIN_EXPORT YellowIconButton : public IconTextButton
{
    Q_OBJECT
public:
    explicit YellowIconButton(QWidget* parent = nullptr);
    ~YellowIconButton() override;
};
