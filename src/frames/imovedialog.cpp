#include "imovedialog.h"

#include "framelessresize.h"
#include "imovedialog_p.h"

#include <QtGui/QPainter>

IMoveDialog::IMoveDialog(QWidget* parent)
    : QDialog(parent)
    , d(new IMoveDialogImpl(this, QSize(), QStringLiteral(":/Dialog/cursor")))
{
    setWindowFlag(Qt::FramelessWindowHint);
    vorlin::platform::installFramelessResize(this, [this](const QPoint& pos) { return hitTest(pos); });
}

IMoveDialog::~IMoveDialog() = default;

void IMoveDialog::showFullWindow()
{
    d->drag.saveNormalSizeAndMaximize();
}

void IMoveDialog::setEnableMoveZoom(bool bEnabled)
{
    d->moveZoomEnabled = bEnabled;
}

int IMoveDialog::hitTest(const QPoint& pos) const
{
    return d->hitTest(pos);
}

void IMoveDialog::mousePressEvent(QMouseEvent* event)
{
    d->press(event);
    QDialog::mousePressEvent(event);
}

void IMoveDialog::mouseMoveEvent(QMouseEvent* event)
{
    d->move(event);
    QDialog::mouseMoveEvent(event);
}

void IMoveDialog::mouseReleaseEvent(QMouseEvent* event)
{
    d->release(event);
    QDialog::mouseReleaseEvent(event);
}

void IMoveDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    // See-through body unless the style sheet paints it.
    painter.fillRect(QRect(3, 3, width() - 6, height() - 6), Qt::transparent);
    // Three rings, darkest inside and fading outwards.
    painter.setBrush(Qt::NoBrush);
    QColor ring(80, 80, 80);
    int inset = 3;
    for (int alpha = 100; alpha > 10; alpha -= 30, --inset) {
        ring.setAlpha(alpha);
        painter.setPen(ring);
        painter.drawRect(QRect(inset, inset, width() - 2 * inset, height() - 2 * inset));
    }
}

bool IMoveDialog::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    if (vorlin::platform::answerNativeHitTest(this, message, result, [this](const QPoint& pos) { return hitTest(pos); }))
        return true;
    return QDialog::nativeEvent(eventType, message, result);
}
