#include "customevent.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>

const QEvent::Type CustomEvent::CustomEventType = static_cast<QEvent::Type>(QEvent::registerEventType(2000));

CustomEvent::CustomEvent(const QString& userData)
    : QEvent(CustomEventType)
    , m_userData(userData)
{
}

CustomEvent::~CustomEvent()
{
    qDebug() << "delete CustomEvent(). user data:" << m_userData;
}

QString CustomEvent::userData() const
{
    return m_userData;
}

void CustomEvent::AsyncPostEvent(const QString& userData, QObject* receiver, int priority)
{
    QCoreApplication::postEvent(receiver, new CustomEvent(userData), priority);
}

void CustomEvent::SyncSendEvent(const QString& userData, QObject* receiver)
{
    CustomEvent event(userData);
    QCoreApplication::sendEvent(receiver, &event);
}
