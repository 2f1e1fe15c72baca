#include "popupmenuwidget.h"

#include "menuitem.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QResizeEvent>

PopupMenuWidget::PopupMenuWidget(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_MouseTracking);
    setWindowFlags((windowFlags() & ~Qt::WindowSystemMenuHint) | Qt::ToolTip | Qt::FramelessWindowHint);
}

PopupMenuWidget::~PopupMenuWidget() = default;

MenuItem* PopupMenuWidget::createSubMenuItem(int id, const QString& text)
{
    for (MenuItem* item : qAsConst(m_items)) {
        if (item->menuId() == id)
            return nullptr;
    }
    auto* item = new MenuItem(id, text, this);
    item->show();
    m_items.append(item);
    postRelayout();
    return item;
}

bool PopupMenuWidget::isSubMenuEmpty() const
{
    return m_items.isEmpty();
}

void PopupMenuWidget::resetSubMenuItems()
{
    for (MenuItem* item : qAsConst(m_items))
        item->setChecked(false);
}

void PopupMenuWidget::setSubMenuItemChecked(int id)
{
    for (MenuItem* item : qAsConst(m_items))
        item->setChecked(item->menuId() == id);
}

MenuItem* PopupMenuWidget::subCheckedMenuItem() const
{
    for (MenuItem* item : m_items) {
        if (item->isChecked())
            return item;
    }
    return nullptr;
}

void PopupMenuWidget::setSubItemHeight(int height)
{
    if (height == m_itemHeight)
        return;
    m_itemHeight = height;
    postRelayout();
}

void PopupMenuWidget::postRelayout()
{
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void PopupMenuWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    // Neighbouring entries share one pixel row.
    int y = 0;
    int widest = 0;
    for (MenuItem* item : qAsConst(m_items)) {
        item->setGeometry(0, y, width(), m_itemHeight);
        y = item->geometry().bottom();
        widest = qMax(widest, item->minimumWidth());
    }
    // The window grows or shrinks to hold exactly its entries; entries with a
    // fixed width set the window's width.
    const QSize fitting(widest > 0 ? widest : width(), m_items.isEmpty() ? 0 : y + 1);
    if (!m_items.isEmpty() && fitting != size())
        resize(fitting);
}
