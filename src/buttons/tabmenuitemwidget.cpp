#include "tabmenuitemwidget.h"

#include "popupmenuwidget.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>

TabMenuItemWidget::TabMenuItemWidget(int id, const QString& text, QWidget* parent)
    : MenuItem(id, text, parent)
    , m_popup(new PopupMenuWidget(this))
{
    setObjectName(QStringLiteral("TabMenuItemWidget"));
    m_popup->hide();
    connect(this, &MenuItem::sigMenuItemClicked, this, &TabMenuItemWidget::slotMainMenuClicked);
}

TabMenuItemWidget::~TabMenuItemWidget() = default;

void TabMenuItemWidget::insertSubMenuItem(int id, const QString& text)
{
    MenuItem* item = m_popup->createSubMenuItem(id, text);
    if (!item)
        return;
    item->setBackgroundColor(m_backgroundColors[StateNormal], m_backgroundColors[StateHover],
                             m_backgroundColors[StatePress], m_backgroundColors[StateDisable]);
    item->setFixedWidth(width());
    connect(item, &MenuItem::sigMenuItemClicked, this, &TabMenuItemWidget::slotSubMenuClicked,
            Qt::UniqueConnection);
}

void TabMenuItemWidget::setSubItemHeight(int height)
{
    m_popup->setSubItemHeight(height);
}

void TabMenuItemWidget::resetState()
{
    setChecked(false);
    m_popup->resetSubMenuItems();
}

void TabMenuItemWidget::slotMainMenuClicked(int itemID)
{
    // An entry with a drop-down is chosen through its sub-entries only.
    if (m_popup->isSubMenuEmpty())
        Q_EMIT sigTabMenuClicked(itemID, -1);
}

void TabMenuItemWidget::slotSubMenuClicked(int iSubItemID)
{
    closePopup();
    m_popup->setSubMenuItemChecked(iSubItemID);
    Q_EMIT sigTabMenuClicked(menuId(), iSubItemID);
    setChecked(m_popup->subCheckedMenuItem() != nullptr);
    QEvent leave(QEvent::Leave);
    leaveEvent(&leave);
}

void TabMenuItemWidget::closePopup()
{
    qApp->removeEventFilter(this);
    m_popup->hide();
}

bool TabMenuItemWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        const QPoint global = static_cast<QMouseEvent*>(event)->globalPos();
        const QRect entryRect(mapToGlobal(QPoint(0, 0)), size());
        if (m_popup->geometry().contains(global)) {
            setChecked(true);
        } else if (!entryRect.contains(global)) {
            closePopup();
            QEvent leave(QEvent::Leave);
            leaveEvent(&leave);
        }
    }
    return MenuItem::eventFilter(watched, event);
}

void TabMenuItemWidget::enterEvent(QEvent* event)
{
    if (!m_popup->isSubMenuEmpty()) {
        m_popup->move(mapToGlobal(QPoint(0, height())));
        m_popup->show();
        setChecked(true);
        qApp->installEventFilter(this);
    }
    MenuItem::enterEvent(event);
}

void TabMenuItemWidget::leaveEvent(QEvent* event)
{
    // While the drop-down is in use the entry shows whether one of its sub-entries is chosen.
    if (!m_popup->isSubMenuEmpty())
        setChecked(m_popup->subCheckedMenuItem() != nullptr);
    MenuItem::leaveEvent(event);
}

void TabMenuItemWidget::resizeEvent(QResizeEvent* event)
{
    MenuItem::resizeEvent(event);
    m_popup->setSubItemHeight(height());
}
