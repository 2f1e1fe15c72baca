#include "processcontrol.h"

#ifndef Q_OS_WIN

#include <csignal>
#include <cstdlib>
#include <ctime>
#include <unistd.h>

namespace vorlin {
namespace platform {

void killCurrentProcess()
{
    ::kill(::getpid(), SIGKILL);
    std::abort(); // not reached
}

quint64 performanceCounter()
{
    timespec now{};
    clock_gettime(CLOCK_MONOTONIC, &now);
    return quint64(now.tv_sec) * 1000000000ULL + quint64(now.tv_nsec);
}

quint64 performanceFrequency()
{
    return 1000000000ULL;
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
