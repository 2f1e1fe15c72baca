#include "processcontrol.h"

#ifdef Q_OS_WIN

#include <cstdlib>

#include <windows.h>

namespace vorlin {
namespace platform {

void killCurrentProcess()
{
    if (HANDLE self = ::OpenProcess(PROCESS_TERMINATE, FALSE, ::GetCurrentProcessId())) {
        ::TerminateProcess(self, 0);
        ::CloseHandle(self);
    }
    std::abort(); // only when termination was refused
}

quint64 performanceCounter()
{
    LARGE_INTEGER counter;
    ::QueryPerformanceCounter(&counter);
    return quint64(counter.QuadPart);
}

quint64 performanceFrequency()
{
    LARGE_INTEGER frequency;
    ::QueryPerformanceFrequency(&frequency);
    return quint64(frequency.QuadPart);
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
