#include "slidermarker.h"

#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtWidgets/QToolTip>

namespace {

const char verticalStyle[] =
    "QSlider{ background:transparent; }"
    "QSlider::groove:vertical{ background:transparent; border-radius:2px; width:4px; }"
    "QSlider::sub-page:vertical{ background:rgb(122,122,122); }"
    "QSlider::add-page:vertical{ background:rgb(255, 255, 160); }"
    "QSlider::handle:vertical{ background:rgb(255, 255, 160); height:8px; border-radius:4px; margin:-2px 0px -2px 0px; }";

const char horizontalStyle[] =
    "QSlider{ background:transparent; }"
    "QSlider::groove:horizontal{ border-radius:2px;height:4px; }"
    "QSlider::sub-page:horizontal{ background:rgb(0, 0, 160); }"
    "QSlider::add-page:horizontal{ background:rgb(210,210,210); }"
    "QSlider::handle:horizontal{ background:rgb(0, 0, 160); width:8px; border-radius:4px; margin:-2px 0px -2px 0px; }";

} // namespace

SliderMarker::SliderMarker(Qt::Orientation orientation, QWidget* parent)
    : QSlider(orientation, parent)
{
    setMinimum(0);
    setMinimumHeight(10);
    setMouseTracking(true);
    setCursor(Qt::PointingHandCursor);
    setStyleSheet(QLatin1String(orientation == Qt::Vertical ? verticalStyle : horizontalStyle));
}

void SliderMarker::slot_SliderMove(int iValue)
{
    QToolTip::showText(QCursor::pos(), QString::number(iValue));
}

void SliderMarker::mousePressEvent(QMouseEvent* event)
{
    changeSliderPosition(event);
    QSlider::mousePressEvent(event);
}

void SliderMarker::mouseMoveEvent(QMouseEvent* event)
{
    changeSliderPosition(event);
    QSlider::mouseMoveEvent(event);
}

void SliderMarker::changeSliderPosition(QMouseEvent* event)
{
    if (!(event->buttons() & Qt::LeftButton))
        return;
    const double span = maximum() - minimum();
    double position;
    if (orientation() == Qt::Horizontal)
        position = minimum() + event->pos().x() * span / width();
    else
        position = maximum() - event->pos().y() * span / height(); // the top is the maximum
    const int target = int(position);
    if (target != sliderPosition())
        setSliderPosition(target);
}
