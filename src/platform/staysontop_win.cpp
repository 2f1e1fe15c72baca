#include "staysontop.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtWidgets/QWidget>

#include <windows.h>

namespace vorlin {
namespace platform {

void toggleStaysOnTop(QWidget* window)
{
    const HWND hwnd = reinterpret_cast<HWND>(window->winId());
    const LONG exStyle = GetWindowLongW(hwnd, GWL_EXSTYLE);
    const UINT keepPlace = SWP_NOMOVE | SWP_NOSIZE | SWP_SHOWWINDOW | SWP_NOOWNERZORDER;
    if (exStyle & WS_EX_TOPMOST) {
        SetWindowLongW(hwnd, GWL_EXSTYLE, exStyle & ~WS_EX_TOPMOST);
        SetWindowPos(hwnd, HWND_NOTOPMOST, 0, 0, 0, 0, keepPlace);
    } else {
        SetWindowLongW(hwnd, GWL_EXSTYLE, exStyle | WS_EX_TOPMOST);
        SetWindowPos(hwnd, HWND_TOPMOST, 0, 0, 0, 0, keepPlace);
    }
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
