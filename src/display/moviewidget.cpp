#include "moviewidget.h"

#include "custommovieevent.h"

#include <QtGui/QImage>
#include <QtGui/QPainter>

MovieWidget::MovieWidget(QWidget* parent)
    : QWidget(parent)
{
}

MovieWidget::~MovieWidget()
{
    delete m_frame;
}

void MovieWidget::customEvent(QEvent* event)
{
    if (!event || event->type() != CustomMovieEvent::ComMoviEventType)
        return;
    delete m_frame;
    // A null image clears the picture.
    m_frame = static_cast<CustomMovieEvent*>(event)->movieImage();
    update();
}

void MovieWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setBrush(Qt::black);
    painter.drawRect(0, 0, width(), height());
    if (!m_frame || m_frame->width() <= 0)
        return;
    const QImage scaled = m_frame->scaled(size(), Qt::KeepAspectRatio, Qt::FastTransformation);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage((width() - scaled.width()) / 2, (height() - scaled.height()) / 2, scaled);
}
