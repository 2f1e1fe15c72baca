#include "popupcomboitemwidget.h"

#include "icontextbutton.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QStyleOption>

namespace {
constexpr int firstItemTop = 16;
}

PopupComboItemWidget::PopupComboItemWidget(QWidget* parent)
    : QWidget(parent)
{
}

void PopupComboItemWidget::appendItem(IconTextButton* item)
{
    insertItem(m_items.size(), item);
}

void PopupComboItemWidget::insertItem(int index, IconTextButton* item)
{
    adoptItem(item);
    m_items.insert(qBound(0, index, m_items.size()), item);
    postResize(QSize(width(), (m_items.size() + 1) * m_itemHeight));
}

void PopupComboItemWidget::adoptItem(IconTextButton* item)
{
    if (item->parentWidget() != this)
        item->setParent(this);
    item->show();
    connect(item, &IconTextButton::sigClicked, this, &PopupComboItemWidget::slotItemClicked);
}

void PopupComboItemWidget::clearItems()
{
    for (IconTextButton* item : qAsConst(m_items)) {
        item->hide();
        item->deleteLater();
    }
    m_items.clear();
    postResize(size());
}

bool PopupComboItemWidget::contain(IconTextButton* item) const
{
    return m_items.contains(item);
}

bool PopupComboItemWidget::contain(IconTextButton* item, int& index) const
{
    index = m_items.indexOf(item);
    return index >= 0;
}

IconTextButton* PopupComboItemWidget::indexOf(int i) const
{
    return m_items.value(i, nullptr);
}

void PopupComboItemWidget::setItemHeight(int height)
{
    if (height < 1 || height == m_itemHeight)
        return;
    m_itemHeight = height;
    postResize(QSize(width(), height * m_items.size()));
}

void PopupComboItemWidget::setPopItemBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press,
                                                     const QColor& disable)
{
    for (IconTextButton* item : qAsConst(m_items))
        item->setBackgroundColor(normal, hover, press, disable);
    update();
}

void PopupComboItemWidget::setPopItemTextColor(const QColor& normal, const QColor& hover, const QColor& press,
                                               const QColor& disable)
{
    for (IconTextButton* item : qAsConst(m_items))
        item->setTextColor(normal, hover, press, disable);
    update();
}

void PopupComboItemWidget::setPopItemTextFont(int pixelSize, const QString& family, bool bold)
{
    for (IconTextButton* item : qAsConst(m_items))
        item->setFontPixelSize(pixelSize, family, bold);
    update();
}

void PopupComboItemWidget::setCheckedItem(IconTextButton* item)
{
    for (IconTextButton* entry : qAsConst(m_items))
        entry->setChecked(entry == item);
}

void PopupComboItemWidget::slotItemClicked()
{
    auto* item = qobject_cast<IconTextButton*>(sender());
    if (!item)
        return;
    setCheckedItem(item);
    hide();
    emit sigItemClicked(item);
}

void PopupComboItemWidget::postResize(const QSize& newSize)
{
    QCoreApplication::postEvent(this, new QResizeEvent(newSize, size()));
}

void PopupComboItemWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    int y = firstItemTop;
    for (IconTextButton* item : qAsConst(m_items)) {
        item->setGeometry(1, y, width() - 2, m_itemHeight);
        y = item->geometry().bottom() + 1;
    }
    // The window grows or shrinks so that every entry is visible, with one pixel of frame
    // below the last.
    const int wanted = y + 1;
    if (height() != wanted)
        resize(width(), wanted);
}

// Painted through the style, so that the popup style sheet of the box applies.
void PopupComboItemWidget::paintEvent(QPaintEvent*)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}
