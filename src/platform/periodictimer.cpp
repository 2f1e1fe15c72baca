#include "periodictimer.h"

namespace vorlin {
namespace platform {

PeriodicTimer::PeriodicTimer(std::function<void()> callback)
    : m_callback(std::move(callback))
{
}

PeriodicTimer::~PeriodicTimer()
{
    stop();
}

} // namespace platform
} // namespace vorlin
