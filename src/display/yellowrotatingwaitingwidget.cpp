#include "yellowrotatingwaitingwidget.h"

YellowRotatingWaitingWidget::YellowRotatingWaitingWidget(QWidget* parent)
    : RotatingWaitingWidget(parent)
{
    setBackgroundColor(QColor(230,130,16, 255));
}
