#include "staysontop.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtWidgets/QWidget>

namespace vorlin {
namespace platform {

void toggleStaysOnTop(QWidget* window)
{
    // Changing the flags re-creates the native window, which forgets where it was.
    const QRect geometry = window->geometry();
    window->setWindowFlags(window->windowFlags() ^ Qt::WindowStaysOnTopHint);
    window->setGeometry(geometry);
    window->show();
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
