#include "datetimelabel.h"

#include <QtCore/QTime>

DateTimeLabel::DateTimeLabel(QWidget* parent)
    : QLabel(parent)
{
    m_tick.setSingleShot(true);
    connect(&m_tick, &QTimer::timeout, this, &DateTimeLabel::updateTime);
    // The first tick comes about 20 ms after the next whole second, later ones about
    // 80 ms after theirs: the margin absorbs timer jitter so a second is never shown twice.
    m_tick.start(1020 - QTime::currentTime().msec());
}

void DateTimeLabel::EnabledUpdateTime(bool)
{
}

void DateTimeLabel::updateTime()
{
    const QTime now = QTime::currentTime();
    setText(now.toString(QStringLiteral("HH:mm:ss")));
    m_tick.start(1080 - now.msec());
}
