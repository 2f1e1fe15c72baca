#include "tabmenuwidget.h"

#include "tabmenuitemwidget.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

TabMenuWidget::TabMenuWidget(QWidget* parent)
    : QWidget(parent)
{
}

TabMenuWidget::~TabMenuWidget() = default;

void TabMenuWidget::insertMenuItem(TabMenuItemWidget* item)
{
    if (!item || m_items.contains(item))
        return;
    m_items.append(item);
    item->setParent(this);
    item->show();
    connect(item, &TabMenuItemWidget::sigTabMenuClicked, this, &TabMenuWidget::slotMenuItemClicked);
    postRelayout();
}

void TabMenuWidget::setMenuItemWidth(int width, int id)
{
    for (TabMenuItemWidget* item : qAsConst(m_items)) {
        if (id == -1 || item->menuId() == id)
            item->setFixedWidth(width);
    }
    postRelayout();
}

void TabMenuWidget::setCurrentMenuItem(int iMainItemID, int iSubItemID, bool emitSignal)
{
    for (TabMenuItemWidget* item : qAsConst(m_items)) {
        if (item->menuId() == iMainItemID)
            item->setChecked(true);
        else
            item->resetState();
    }
    if (emitSignal)
        Q_EMIT sigMenuItemClicked(iMainItemID, iSubItemID);
}

TabMenuItemWidget* TabMenuWidget::currentMenuItem() const
{
    for (TabMenuItemWidget* item : m_items) {
        if (item->isChecked())
            return item;
    }
    return nullptr;
}

QString TabMenuWidget::currentMenuItemText() const
{
    const TabMenuItemWidget* item = currentMenuItem();
    return item ? item->text() : QString();
}

void TabMenuWidget::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    update();
}

void TabMenuWidget::slotMenuItemClicked(int iMainItemID, int iSubItemID)
{
    setCurrentMenuItem(iMainItemID, iSubItemID, true);
}

void TabMenuWidget::postRelayout()
{
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void TabMenuWidget::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setFont(font());
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(m_backgroundColor);
    painter.fillRect(rect(), m_backgroundColor);
}

void TabMenuWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Neighbouring entries share one pixel column.
    int x = 0;
    for (TabMenuItemWidget* item : qAsConst(m_items)) {
        item->setGeometry(x, 0, item->width(), height());
        x = item->geometry().right();
    }
}

// The bar keeps mouse events to itself; its entries get their own.
void TabMenuWidget::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void TabMenuWidget::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

void TabMenuWidget::mouseDoubleClickEvent(QMouseEvent* event)
{
    event->accept();
}

void TabMenuWidget::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}
