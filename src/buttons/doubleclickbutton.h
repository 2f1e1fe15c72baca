#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QPushButton>

// A push button that reports left-button double clicks.
class VORLIN_EXPORT DoubleClickButton : public QPushButton
{
    Q_OBJECT
public:
    explicit DoubleClickButton(QWidget* parent = nullptr);
    ~DoubleClickButton() override;

Q_SIGNALS:
    void doubleClicked();

protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};
