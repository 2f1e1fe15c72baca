#pragma once

#include "icontextbutton.h"

// An IconTextButton with the library's blue backgrounds.
class VORLIN_EXPORT BlueIconButton : public IconTextButton
{
    Q_OBJECT
public:
    explicit BlueIconButton(QWidget* parent = nullptr);
    ~BlueIconButton() override;
};
