#include "imainwindow.h"

#include "mainapplication.h"

IMainWindow::IMainWindow(QWidget* parent)
    : QMainWindow(parent)
{
    if (auto* app = qobject_cast<MainApplication*>(QCoreApplication::instance()))
        app->setMainWindow(this);
}

IMainWindow::~IMainWindow() = default;

void IMainWindow::ShowRaiseWindow()
{
    showMaximized();
    activateWindow();
    raise();
}
