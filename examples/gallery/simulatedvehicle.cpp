#include "simulatedvehicle.h"

#include <QtCore/QCoreApplication>

#include <cmath>

SimulatedVehicle* SimulatedVehicle::instance()
{
    static SimulatedVehicle* vehicle = new SimulatedVehicle;
    return vehicle;
}

SimulatedVehicle::SimulatedVehicle()
    : QObject(QCoreApplication::instance())
{
    m_clock.start();
    m_timer.setInterval(40);
    connect(&m_timer, &QTimer::timeout, this, &SimulatedVehicle::tick);
    m_timer.start();
    setTime(0);
}

void SimulatedVehicle::tick()
{
    setTime(m_clock.elapsed() / 1000.0);
}

void SimulatedVehicle::setTime(double seconds)
{
    m_seconds = seconds;
    const double t = seconds;
    m_roll = 35.0 * std::sin(t * 0.45) + 5.0 * std::sin(t * 1.7);
    m_pitch = 12.0 * std::sin(t * 0.31 + 1.0) + 3.0 * std::sin(t * 1.3);
    m_heading = std::fmod(t * 9.0 + 40.0, 360.0);
    // The battery drains over ten minutes, then a fresh pack is fitted.
    const double charge = 1.0 - std::fmod(t, 600.0) / 600.0;
    m_batteryPercent = int(std::lround(charge * 100.0));
    m_voltage = 19.8 + 5.4 * charge;
    // The link fades as the aircraft flies away and back, with a short drop-out every 40 s.
    const double fade = 0.5 + 0.5 * std::cos(t * 0.12);
    m_linkQuality = int(std::lround(25.0 + 75.0 * fade));
    if (std::fmod(t, 40.0) > 37.0)
        m_linkQuality = 0;
    Q_EMIT changed();

    const int slot = int(t / 7.0);
    if (slot != m_lastWarningSlot) {
        m_lastWarningSlot = slot;
        if (!isLinked())
            Q_EMIT warningRaised(2, tr("Link lost: no telemetry from the aircraft"));
        else if (m_batteryPercent < 25)
            Q_EMIT warningRaised(2, tr("Battery low: %1 %, land soon").arg(m_batteryPercent));
        else if (std::abs(m_roll) > 30)
            Q_EMIT warningRaised(1, tr("Bank angle %1° exceeds 30°").arg(m_roll, 0, 'f', 1));
        else
            Q_EMIT warningRaised(0, tr("Waypoint %1 reached").arg(slot % 12 + 1));
    }
}
