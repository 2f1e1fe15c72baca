#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QMainWindow>

// Base of the application's main window. It registers itself with the application object
// on construction, which is how the title bar and other widgets find it.
class VORLIN_EXPORT IMainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit IMainWindow(QWidget* parent = nullptr);
    ~IMainWindow() override;

    // Shows the window maximised, activates and raises it (the name notwithstanding).
    Q_INVOKABLE void ShowRaiseWindow();
};
