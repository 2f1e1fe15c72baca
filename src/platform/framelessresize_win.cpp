#include "framelessresize.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtCore/QPoint>
#include <QtWidgets/QWidget>

#include <windows.h>

namespace vorlin {
namespace platform {

void installFramelessResize(QWidget*, EdgeHitTest)
{
    // The window manager asks the window itself through WM_NCHITTEST.
}

bool answerNativeHitTest(QWidget* window, void* message, long* result, const EdgeHitTest& hitTest)
{
    const MSG* msg = static_cast<const MSG*>(message);
    if (!msg || msg->message != WM_NCHITTEST)
        return false;
    const long saved = *result;
    *result = 0;
    const QRect frame = window->frameGeometry();
    const int x = static_cast<short>(LOWORD(msg->lParam)) - frame.x();
    const int y = static_cast<short>(HIWORD(msg->lParam)) - frame.y();
    const int hit = hitTest(QPoint(x, y));
    if (hit == 0) {
        *result = saved;
        return false;
    }
    *result = hit;
    return true;
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
