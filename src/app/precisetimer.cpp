#include "precisetimer.h"

#include "periodictimer.h"

PreciseTimer::PreciseTimer(QObject* parent)
    : QObject(parent)
    , m_timer(std::make_unique<vorlin::platform::PeriodicTimer>([this] { Q_EMIT timeout(); }))
{
}

PreciseTimer::~PreciseTimer()
{
    stop();
}

unsigned PreciseTimer::timerId() const
{
    return m_timerId;
}

void PreciseTimer::start(int msDelay)
{
    m_timerId = m_timer->start(msDelay);
}

void PreciseTimer::stop()
{
    m_timer->stop();
    m_timerId = 0;
}
