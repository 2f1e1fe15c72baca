#pragma once

#include "vorlinglobal.h"

#include <QtCore/QEvent>
#include <QtCore/QString>

class QObject;

// Carries a text to an object through the event queue.
class VORLIN_EXPORT CustomEvent : public QEvent
{
public:
    // Obtained once when the library is loaded (preferred value 2000); compare with this,
    // never with the number.
    static const QEvent::Type CustomEventType;

    explicit CustomEvent(const QString& userData);
    ~CustomEvent() override;

    QString userData() const;

    // The event queue owns and deletes the posted event; callable from any thread.
    static void AsyncPostEvent(const QString& userData, QObject* receiver, int priority = Qt::NormalEventPriority);
    // Delivers at once in the caller's thread, which must be the receiver's.
    static void SyncSendEvent(const QString& userData, QObject* receiver);

private:
    QString m_userData;
};
