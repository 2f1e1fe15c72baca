#pragma once

#include "vorlinglobal.h"

#include <QtCore/QEvent>

class QImage;
class QObject;

// Carries a video frame (not owned) to an object through the event queue.
class VORLIN_EXPORT CustomMovieEvent : public QEvent
{
public:
    // Obtained once when the library is loaded (preferred value 2001).
    static const QEvent::Type ComMoviEventType;

    explicit CustomMovieEvent(QImage* image);

    QImage* movieImage() const;

    // The event queue owns and deletes the posted event; callable from any thread.
    static void AsyncPostEvent(QImage* image, QObject* receiver, int priority = Qt::NormalEventPriority);

private:
    QImage* m_image;
};
