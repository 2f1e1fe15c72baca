#include "viewwidget.h"

#include "scrollbarstyle_p.h"
#include "viewheader.h"
#include "viewitem.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOption>

ViewWidget::ViewWidget(QWidget* parent)
    : QWidget(parent)
    , m_header(new ViewHeader(this))
    , m_scrollArea(new QScrollArea(this))
    , m_content(new QWidget)
{
    m_header->setFontStyle(m_headerFontSize, m_headerFontColor, m_headerFontFamily);
    m_header->setLineColor(m_insideVerticalColor, m_insideHorizontalColor);
    m_header->setBackgroundColor(m_headerBackgroundColor);

    m_scrollArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scrollArea->setStyleSheet(QStringLiteral("border: none; background-color: transparent;"));
    m_scrollArea->setWidget(m_content);
    vorlin::applyScrollBarStyle(m_scrollArea);
    m_scrollArea->viewport()->installEventFilter(this);
    connect(m_scrollArea->verticalScrollBar(), &QScrollBar::valueChanged, this, &ViewWidget::bringRowsIntoSight);
}

void ViewWidget::setHeaderContents(const QStringList& texts, const QList<int>& weights)
{
    m_header->setHeaderContents(texts, weights);
}

void ViewWidget::setHeaderFont(const QColor& color, int pixelSize, const QString& family)
{
    m_headerFontColor = color;
    m_headerFontSize = qMax(9, pixelSize);
    m_headerFontFamily = family;
    m_header->setFontStyle(pixelSize, color, family);
}

void ViewWidget::setHeaderHeight(int height)
{
    m_headerHeight = qMax(24, height);
    relayout();
}

void ViewWidget::setHeaderBackgroundColor(const QColor& color)
{
    m_headerBackgroundColor = color;
    m_header->setBackgroundColor(color);
}

void ViewWidget::setItemFont(const QColor& color, int pixelSize, const QString& family)
{
    for (ViewItem* item : qAsConst(m_items))
        item->setFontStyle(pixelSize, color, family);
}

void ViewWidget::setItemHeight(int height)
{
    m_itemHeight = qMax(24, height);
    relayout();
}

void ViewWidget::setItemBackgroundColor(const QColor& color)
{
    for (ViewItem* item : qAsConst(m_items))
        item->setBackgroundColor(color);
}

void ViewWidget::setInsideLineColor(const QColor& vertical, const QColor& horizontal)
{
    m_insideVerticalColor = vertical;
    m_insideHorizontalColor = horizontal;
    m_header->setLineColor(vertical, horizontal);
    for (ViewItem* item : qAsConst(m_items))
        item->setItemLineColor(vertical, horizontal);
}

void ViewWidget::setOutsideBorderColor(const QColor& color)
{
    m_outsideBorderColor = color;
}

void ViewWidget::enableSeparateColor(bool enable)
{
    m_alternate = enable;
    applyAlternation();
}

void ViewWidget::applyAlternation()
{
    bool filled = false;
    for (ViewItem* item : qAsConst(m_items)) {
        if (item->isItemBackcolorEnabled() != filled)
            item->setItemBackcolorEnabled(filled);
        filled = m_alternate && !filled;
    }
}

void ViewWidget::appendViewItem(ViewItem* item)
{
    insertViewItem(m_items.size(), item);
}

void ViewWidget::insertViewItem(int index, ViewItem* item)
{
    // A row not yet under the content widget cannot be in the list: no need to search it.
    if (!item || (item->parentWidget() == m_content && m_items.contains(item)))
        return;
    item->m_heldByView = true;
    item->m_showPending = true;
    item->setParent(m_content);
    item->setItemLineColor(m_insideVerticalColor, m_insideHorizontalColor);
    index = qBound(0, index, m_items.size());
    m_items.insert(index, item);
    if (index == m_items.size() - 1) {
        // Appending leaves the rows above as they are: only the new row's fill is decided.
        const bool filled = m_alternate && index % 2 == 1;
        if (item->isItemBackcolorEnabled() != filled)
            item->setItemBackcolorEnabled(filled);
    } else {
        applyAlternation();
    }
    relayout();
}

void ViewWidget::removeViewItem(ViewItem* item)
{
    if (!m_items.removeOne(item))
        return;
    applyAlternation();
    relayout();
    item->hide();
    item->deleteLater();
}

void ViewWidget::removeAll()
{
    for (ViewItem* item : qAsConst(m_items)) {
        item->hide();
        item->deleteLater();
    }
    m_items.clear();
    relayout();
}

void ViewWidget::relayout()
{
    // One pending layout serves every change made before the event loop runs again.
    if (m_layoutPending)
        return;
    m_layoutPending = true;
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

// A new row is shown, and its labels made, when it first comes into the scroll area's sight:
// polishing and styling thousands of rows nobody has scrolled to would cost far more than
// the rows themselves.
void ViewWidget::bringIntoSight(ViewItem* item)
{
    const QRect sight(-m_content->pos(), m_scrollArea->viewport()->size());
    if (!sight.intersects(item->geometry()))
        return;
    item->makePendingLabels();
    if (item->m_showPending) {
        item->m_showPending = false;
        item->show();
    }
}

void ViewWidget::bringRowsIntoSight()
{
    // Until the pending layout has placed the rows their geometry means nothing; it brings
    // them in itself.
    if (m_items.isEmpty() || m_layoutPending)
        return;
    // Rows are laid out top down at a fixed pitch: start near the first one in sight.
    const int pitch = qMax(1, m_items.first()->height() - 1);
    for (int i = qBound(0, -m_content->y() / pitch - 1, m_items.size()); i < m_items.size(); ++i) {
        ViewItem* item = m_items.at(i);
        if (item->y() > -m_content->y() + m_scrollArea->viewport()->height())
            break;
        bringIntoSight(item);
    }
}

bool ViewWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_scrollArea->viewport() && event->type() == QEvent::Resize)
        bringRowsIntoSight();
    return QWidget::eventFilter(watched, event);
}

void ViewWidget::paintEvent(QPaintEvent*)
{
    QStyleOption option;
    option.initFrom(this);
    QPainter painter(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void ViewWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_layoutPending = false;
    m_header->setGeometry(0, 0, width(), m_headerHeight);
    m_scrollArea->setGeometry(0, m_headerHeight, width(), height() - m_headerHeight);
    const int rowWidth = m_scrollArea->width();
    int y = 0;
    for (ViewItem* item : qAsConst(m_items)) {
        item->setGeometry(0, y, rowWidth, m_itemHeight);
        // Rows overlap by one pixel on purpose: a row's bottom line and the next row's top
        // share a pixel row.
        y = item->geometry().bottom();
        bringIntoSight(item);
        QResizeEvent relayout(item->size(), item->size());
        QCoreApplication::sendEvent(item, &relayout);
    }
    m_content->resize(rowWidth, y + 1);
}
