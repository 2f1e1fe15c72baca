#pragma once

#include <QtGui/QColor>
#include <QtGui/QPainterPath>

class QPainter;

namespace vorlin {

// The rounded-rectangle path every custom-painted widget of the library draws with
// (radii in absolute pixels; 0 gives a plain rectangle).
QPainterPath roundedRectPath(const QRectF& rect, qreal xRadius, qreal yRadius);
inline QPainterPath roundedRectPath(const QRectF& rect, qreal radius)
{
    return roundedRectPath(rect, radius, radius);
}

// Fills the rounded rectangle with pen and solid brush both in the colour, as the widgets'
// backgrounds are painted. Leaves pen and brush set to the colour.
void fillRoundedRect(QPainter& painter, const QRectF& rect, qreal radius, const QColor& color);

} // namespace vorlin
