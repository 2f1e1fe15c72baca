#include "custommovieevent.h"

#include <QtCore/QCoreApplication>

const QEvent::Type CustomMovieEvent::ComMoviEventType = static_cast<QEvent::Type>(QEvent::registerEventType(2001));

CustomMovieEvent::CustomMovieEvent(QImage* image)
    : QEvent(ComMoviEventType)
    , m_image(image)
{
}

QImage* CustomMovieEvent::movieImage() const
{
    return m_image;
}

void CustomMovieEvent::AsyncPostEvent(QImage* image, QObject* receiver, int priority)
{
    QCoreApplication::postEvent(receiver, new CustomMovieEvent(image), priority);
}
