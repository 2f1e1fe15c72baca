#include "bluerotatingwaitingwidget.h"

BlueRotatingWaitingWidget::BlueRotatingWaitingWidget(QWidget* parent)
    : RotatingWaitingWidget(parent)
{
    setBackgroundColor(QColor(18,99,196, 255));
}
