#pragma once

#include <functional>
#include <memory>

namespace vorlin {
namespace platform {

// A periodic callback at millisecond resolution outside any Qt thread: the multimedia
// timer on Windows, a dedicated thread sleeping to absolute deadlines elsewhere.
class PeriodicTimer
{
public:
    explicit PeriodicTimer(std::function<void()> callback);
    ~PeriodicTimer();
    PeriodicTimer(const PeriodicTimer&) = delete;
    PeriodicTimer& operator=(const PeriodicTimer&) = delete;

    // Replaces a running timer; returns a non-zero identifier, or 0 on failure.
    unsigned start(int periodMs);
    // Waits for a running callback, unless called from the callback itself.
    void stop();

    struct State;

private:
    std::function<void()> m_callback;
    std::shared_ptr<State> m_state;
};

} // namespace platform
} // namespace vorlin
