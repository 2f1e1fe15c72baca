#include "windowlookup.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtCore/QString>

#include <windows.h>

namespace vorlin {
namespace platform {

namespace {
HWND findTopLevel(const QString& title)
{
    return ::FindWindowW(nullptr, reinterpret_cast<const wchar_t*>(title.utf16()));
}
} // namespace

bool isTopLevelWindowVisible(const QString& title)
{
    HWND window = findTopLevel(title);
    return window && ::IsWindowVisible(window);
}

bool raiseTopLevelWindow(const QString& title)
{
    HWND window = findTopLevel(title);
    if (!window)
        return false;
    ::ShowWindow(window, SW_SHOWNORMAL);
    ::SetForegroundWindow(window);
    return true;
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
