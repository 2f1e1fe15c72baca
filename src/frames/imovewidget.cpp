#include "imovewidget.h"

#include "framelessresize.h"
#include "imovewidget_p.h"
#include "roundedpath_p.h"

#include <QtGui/QPainter>

IMoveWidget::IMoveWidget(QWidget* parent)
    : QWidget(parent)
    , d(new IMoveWidgetImpl(this, QSize(800, 600), QStringLiteral(":/state_icon/cursor.png")))
{
    setWindowFlag(Qt::FramelessWindowHint);
    vorlin::platform::installFramelessResize(this, [this](const QPoint& pos) { return hitTest(pos); });
}

IMoveWidget::~IMoveWidget() = default;

void IMoveWidget::showFullWindow()
{
    d->drag.saveNormalSizeAndMaximize();
}

void IMoveWidget::setEnableMoveZoom(bool bEnabled)
{
    d->moveZoomEnabled = bEnabled;
}

void IMoveWidget::setBorderColor(QColor clr)
{
    d->borderColor = clr;
    update();
}

void IMoveWidget::staysOnTopHint(bool bOnTop)
{
    vorlin::setStaysOnTopHint(this, bOnTop);
}

void IMoveWidget::staysOnTopHint()
{
    staysOnTopHint(true);
}

int IMoveWidget::hitTest(const QPoint& pos) const
{
    return d->hitTest(pos);
}

void IMoveWidget::mousePressEvent(QMouseEvent* event)
{
    d->press(event);
    QWidget::mousePressEvent(event);
}

void IMoveWidget::mouseMoveEvent(QMouseEvent* event)
{
    d->move(event);
    QWidget::mouseMoveEvent(event);
}

void IMoveWidget::mouseReleaseEvent(QMouseEvent* event)
{
    d->release(event);
    QWidget::mouseReleaseEvent(event);
}

void IMoveWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(d->borderColor, d->borderWidth));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(vorlin::roundedRectPath(rect(), d->borderWidth));
}

bool IMoveWidget::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    if (vorlin::platform::answerNativeHitTest(this, message, result, [this](const QPoint& pos) { return hitTest(pos); }))
        return true;
    return QWidget::nativeEvent(eventType, message, result);
}
