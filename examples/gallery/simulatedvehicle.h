#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtCore/QTimer>

// A pretend aircraft for the gallery's live pages: attitude, heading, battery and link
// quality change smoothly over time, and warnings are raised now and then.
class SimulatedVehicle : public QObject
{
    Q_OBJECT
public:
    static SimulatedVehicle* instance();

    double roll() const { return m_roll; }         // degrees, right wing down positive
    double pitch() const { return m_pitch; }       // degrees, nose up positive
    double heading() const { return m_heading; }   // degrees, 0 to 360
    double voltage() const { return m_voltage; }   // volts of a six-cell pack
    int batteryPercent() const { return m_batteryPercent; }
    int linkQuality() const { return m_linkQuality; } // 0 to 100
    bool isLinked() const { return m_linkQuality > 10; }
    double seconds() const { return m_seconds; }

    // Moves the simulation to a point in time; used to render pages without waiting.
    void setTime(double seconds);

Q_SIGNALS:
    void changed();
    // kind: 0 information, 1 warning, 2 alarm
    void warningRaised(int kind, const QString& text);

private:
    SimulatedVehicle();
    void tick();

    QTimer m_timer;
    QElapsedTimer m_clock;
    double m_seconds = 0;
    double m_roll = 0;
    double m_pitch = 0;
    double m_heading = 0;
    double m_voltage = 25.2;
    int m_batteryPercent = 100;
    int m_linkQuality = 100;
    int m_lastWarningSlot = -1;
};
