#include "namedmutex.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtCore/QString>

#include <windows.h>

namespace vorlin {
namespace platform {

struct NamedMutex
{
    HANDLE handle;
};

NamedMutex* acquireNamedMutex(const QString& name, bool* heldElsewhere)
{
    const std::wstring wideName = name.toStdWString();
    if (HANDLE existing = ::OpenMutexW(MUTEX_ALL_ACCESS, FALSE, wideName.c_str())) {
        ::CloseHandle(existing);
        *heldElsewhere = true;
        return nullptr;
    }
    *heldElsewhere = false;
    HANDLE created = ::CreateMutexW(nullptr, TRUE, wideName.c_str());
    return created ? new NamedMutex{created} : nullptr;
}

void releaseNamedMutex(NamedMutex* mutex)
{
    if (!mutex)
        return;
    ::CloseHandle(mutex->handle);
    delete mutex;
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
