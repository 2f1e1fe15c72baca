#include "msgviewwidget.h"

#include "msgviewitem.h"
#include "scrollbarstyle_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

MsgViewWidget::MsgViewWidget(QWidget* parent)
    : QWidget(parent)
    , m_scrollArea(new QScrollArea(this))
    , m_content(new QWidget)
{
    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setStyleSheet(QStringLiteral("border: 0px; background-color: transparent;"));
    m_scrollArea->setWidget(m_content);
    vorlin::applyScrollBarStyle(m_scrollArea);
}

void MsgViewWidget::addItem(const MsgInfoT& info)
{
    auto* item = new MsgViewItem(info, m_content);
    m_items.prepend(item);
    item->show();
    if (m_items.size() > m_maxCount)
        dropOldest();
    relayout();
}

void MsgViewWidget::clearAll()
{
    for (MsgViewItem* item : qAsConst(m_items)) {
        item->hide();
        item->deleteLater();
    }
    m_items.clear();
    relayout();
}

void MsgViewWidget::setMaxCount(int count)
{
    if (count == m_maxCount || count < 1)
        return;
    m_maxCount = count;
    // Only one row leaves, however many are over the new cap; since addItem also drops at
    // most one, the surplus stays. This is how the view has always trimmed.
    if (m_items.size() > count)
        dropOldest();
    relayout();
}

void MsgViewWidget::dropOldest()
{
    MsgViewItem* oldest = m_items.takeLast();
    oldest->hide();
    oldest->deleteLater();
}

void MsgViewWidget::scrollTop()
{
    m_scrollArea->verticalScrollBar()->setValue(0);
}

void MsgViewWidget::relayout()
{
    // One pending layout serves every message added before the event loop runs again.
    if (m_layoutPending)
        return;
    m_layoutPending = true;
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void MsgViewWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_layoutPending = false;
    m_scrollArea->setGeometry(rect().adjusted(1, 1, -1, -1));
    const int rowWidth = m_scrollArea->width();
    int y = 0;
    for (MsgViewItem* item : qAsConst(m_items)) {
        // The height depends on the width, so the width is settled first.
        if (item->width() != rowWidth)
            item->resize(rowWidth, item->height());
        item->setGeometry(0, y, rowWidth, item->autoHeight());
        y += item->height();
    }
    m_content->resize(rowWidth, y);
}

void MsgViewWidget::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    relayout();
}
