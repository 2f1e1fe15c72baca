#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QCheckBox>

// A check box drawn as an on/off switch.
class VORLIN_EXPORT StateSwitchButton : public QCheckBox
{
    Q_OBJECT
public:
    explicit StateSwitchButton(const QString& text, QWidget* parent = nullptr);
    explicit StateSwitchButton(QWidget* parent = nullptr);
    ~StateSwitchButton() override;

private:
    void init(QWidget* parent);
};
