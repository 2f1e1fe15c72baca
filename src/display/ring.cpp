#include "ring_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QWidget>

namespace vorlin {

QRect beginRing(QPainter& painter, const QWidget* widget, int ringWidth)
{
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(widget->font());
    QPen pen = painter.pen();
    pen.setWidth(ringWidth);
    painter.setPen(pen);
    painter.translate(widget->width() / 2, widget->height() / 2);
    painter.rotate(-90);
    const int d = qMin(widget->width(), widget->height()) - 2 * ringWidth;
    return QRect(-d / 2, -d / 2, d, d);
}

} // namespace vorlin
