#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>

#include <memory>

namespace vorlin { namespace platform { class PeriodicTimer; } }

// A periodic timer with millisecond precision that never drifts. timeout() is emitted
// from the timer's own thread, which is no Qt thread: connect receivers with automatic or
// queued connections.
class VORLIN_EXPORT PreciseTimer : public QObject
{
    Q_OBJECT
public:
    explicit PreciseTimer(QObject* parent = nullptr);
    ~PreciseTimer() override;

    // The identifier of the running timer, 0 when stopped.
    unsigned timerId() const;

public Q_SLOTS:
    void start(int msDelay);
    // Waits for a running timeout, except when called from a timeout receiver itself.
    void stop();

Q_SIGNALS:
    void timeout();

private:
    std::unique_ptr<vorlin::platform::PeriodicTimer> m_timer;
    unsigned m_timerId = 0;
};
