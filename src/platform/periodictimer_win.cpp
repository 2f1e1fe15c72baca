#include "periodictimer.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <windows.h>
#include <mmsystem.h>

namespace vorlin {
namespace platform {

struct PeriodicTimer::State
{
    UINT id = 0;
};

namespace {

void CALLBACK onTick(UINT, UINT, DWORD_PTR user, DWORD_PTR, DWORD_PTR)
{
    auto* timer = reinterpret_cast<std::function<void()>*>(user);
    (*timer)();
}

} // namespace

unsigned PeriodicTimer::start(int periodMs)
{
    stop();
    if (periodMs <= 0)
        return 0;
    const UINT id = timeSetEvent(UINT(periodMs), 1, onTick, reinterpret_cast<DWORD_PTR>(&m_callback),
                                 TIME_PERIODIC | TIME_KILL_SYNCHRONOUS);
    if (id == 0)
        return 0;
    m_state = std::make_shared<State>();
    m_state->id = id;
    return id;
}

void PeriodicTimer::stop()
{
    if (!m_state)
        return;
    // TIME_KILL_SYNCHRONOUS makes the kill wait for a running callback.
    timeKillEvent(m_state->id);
    m_state.reset();
}

} // namespace platform
} // namespace vorlin

#endif
