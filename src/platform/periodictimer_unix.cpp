#include "periodictimer.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <atomic>
#include <cerrno>
#include <thread>
#include <time.h>
#ifdef Q_OS_LINUX
#include <sys/prctl.h>
#endif

namespace vorlin {
namespace platform {

struct PeriodicTimer::State
{
    std::atomic<bool> stopRequested{false};
    std::thread thread;
};

namespace {

constexpr long kNanosPerSecond = 1000000000L;
// Long sleeps are cut into slices so that stop() never waits much longer than this.
constexpr long kSliceNanos = 50L * 1000000L;

void addNanos(timespec& t, long nanos)
{
    t.tv_sec += nanos / kNanosPerSecond;
    t.tv_nsec += nanos % kNanosPerSecond;
    if (t.tv_nsec >= kNanosPerSecond) {
        t.tv_nsec -= kNanosPerSecond;
        ++t.tv_sec;
    }
}

bool before(const timespec& a, const timespec& b)
{
    return a.tv_sec < b.tv_sec || (a.tv_sec == b.tv_sec && a.tv_nsec < b.tv_nsec);
}

void sleepUntil(const timespec& deadline)
{
    while (clock_nanosleep(CLOCK_MONOTONIC, TIMER_ABSTIME, &deadline, nullptr) == EINTR) {
    }
}

// Sleeps to the deadline; returns false when a stop was requested meanwhile.
bool waitFor(const timespec& deadline, const std::atomic<bool>& stopRequested)
{
    for (;;) {
        if (stopRequested.load())
            return false;
        timespec slice;
        clock_gettime(CLOCK_MONOTONIC, &slice);
        addNanos(slice, kSliceNanos);
        if (!before(slice, deadline)) {
            sleepUntil(deadline);
            return !stopRequested.load();
        }
        sleepUntil(slice);
    }
}

void run(std::shared_ptr<PeriodicTimer::State> state, std::function<void()> callback, long periodNanos)
{
#ifdef Q_OS_LINUX
    prctl(PR_SET_TIMERSLACK, 1UL, 0UL, 0UL, 0UL);
#endif
    timespec deadline;
    clock_gettime(CLOCK_MONOTONIC, &deadline);
    // Deadlines advance from the start by whole periods, so late wake-ups never add up.
    for (;;) {
        addNanos(deadline, periodNanos);
        if (!waitFor(deadline, state->stopRequested))
            return;
        callback();
    }
}

} // namespace

unsigned PeriodicTimer::start(int periodMs)
{
    stop();
    if (periodMs <= 0)
        return 0;
    static std::atomic<unsigned> nextId{1};
    m_state = std::make_shared<State>();
    m_state->thread = std::thread(run, m_state, m_callback, periodMs * 1000000L);
    return nextId.fetch_add(1);
}

void PeriodicTimer::stop()
{
    if (!m_state)
        return;
    std::shared_ptr<State> state = std::move(m_state);
    state->stopRequested = true;
    if (state->thread.get_id() == std::this_thread::get_id())
        state->thread.detach(); // stopping from the callback: the thread ends after it returns
    else if (state->thread.joinable())
        state->thread.join();
}

} // namespace platform
} // namespace vorlin

#endif
