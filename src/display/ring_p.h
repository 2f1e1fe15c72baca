#pragma once

#include <QtCore/QRect>

class QPainter;
class QWidget;

namespace vorlin {

// Prepares the painter of a ring indicator: antialiased, the widget's font, a pen of the
// ring width, origin at the widget's centre and angle 0 at twelve o'clock. Returns the
// square the ring is drawn on, inset so that the pen stays inside the widget.
QRect beginRing(QPainter& painter, const QWidget* widget, int ringWidth);

} // namespace vorlin
