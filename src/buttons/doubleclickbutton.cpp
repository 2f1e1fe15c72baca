#include "doubleclickbutton.h"

#include <QtGui/QMouseEvent>
#include <QtWidgets/QStyleOptionButton>
#include <QtWidgets/QStylePainter>

DoubleClickButton::DoubleClickButton(QWidget* parent)
    : QPushButton(parent)
{
}

DoubleClickButton::~DoubleClickButton() = default;

void DoubleClickButton::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

void DoubleClickButton::paintEvent(QPaintEvent*)
{
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    painter.drawControl(QStyle::CE_PushButton, option);
}
