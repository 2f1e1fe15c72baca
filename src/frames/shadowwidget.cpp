#include "shadowwidget.h"

ShadowWidget::ShadowWidget(QWidget* parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setWindowOpacity(0.1);
    hide();
}
