#include "roundedpath_p.h"

#include <QtGui/QPainter>

namespace vorlin {

QPainterPath roundedRectPath(const QRectF& rect, qreal xRadius, qreal yRadius)
{
    QPainterPath path;
    path.addRoundedRect(rect, xRadius, yRadius, Qt::AbsoluteSize);
    return path;
}

void fillRoundedRect(QPainter& painter, const QRectF& rect, qreal radius, const QColor& color)
{
    painter.setPen(color);
    painter.setBrush(QBrush(color, Qt::SolidPattern));
    painter.drawPath(roundedRectPath(rect, radius));
}

} // namespace vorlin
