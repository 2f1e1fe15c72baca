#include "warnmsgview.h"

#include "msgviewwidget.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPolygon>
#include <QtWidgets/QApplication>

namespace {
constexpr int pointerHeight = 8;
constexpr int pointerHalfWidth = 5;
constexpr int pointerOffset = 30; // apex, from the right edge
}

WarnMsgView::WarnMsgView(QWidget* parent)
    : QWidget(parent)
    , m_view(new MsgViewWidget(this))
{
    const QString filler = QStringLiteral("航线规划已完成，飞行器正在爬升至巡航高度，请留意云台角度、图传信号与电池余量，"
                                          "降落前确认返航点位置无遮挡。这是一个demo. %1");
    for (int i = 0; i < 100; ++i)
        m_view->addItem(MsgInfoT{0, filler.arg(i), QDateTime::currentDateTime()});
}

void WarnMsgView::slotClearContent()
{
}

void WarnMsgView::slotCurrentPageChanged(int idx)
{
    Q_UNUSED(idx)
}

void WarnMsgView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Margins on the left and top only: the list reaches the right and bottom edges.
    m_view->setGeometry(10, 10, width() - 10, height() - 10);
}

void WarnMsgView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(255, 255, 255, 255));
    QPen pen = painter.pen();
    pen.setColor(QColor(102, 102, 102, 255));
    painter.setPen(pen);

    const QRect body(1, pointerHeight, width() - 1, height() - pointerHeight);
    const QPolygon bubble({body.topLeft(), body.bottomLeft(), body.bottomRight(), body.topRight(),
                           QPoint(body.right() - pointerOffset + pointerHalfWidth, body.top()),
                           QPoint(body.right() - pointerOffset, body.top() - pointerHeight),
                           QPoint(body.right() - pointerOffset - pointerHalfWidth, body.top())});
    painter.drawPolygon(bubble, Qt::OddEvenFill);
}

void WarnMsgView::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    qApp->installEventFilter(this);
}

void WarnMsgView::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    qApp->removeEventFilter(this);
}

// Looks at presses anywhere in the application while shown but leaves them all alone: the
// hook is kept for applications that close the panel on an outside press themselves.
bool WarnMsgView::eventFilter(QObject* watched, QEvent* event)
{
    return QWidget::eventFilter(watched, event);
}

// A press on the bubble's outline stays with the panel; inside it, the press is left as it came.
void WarnMsgView::mousePressEvent(QMouseEvent* event)
{
    if (!rect().adjusted(1, 1, -1, -1).contains(event->pos()))
        event->accept();
}

void WarnMsgView::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}

void WarnMsgView::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}
