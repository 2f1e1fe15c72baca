#include "viewitem.h"

#include "colortotext.h"
#include "columnlayout_p.h"
#include "separatelinewidget.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStyleOption>

ViewItem::ViewItem(QWidget* parent)
    : QWidget(parent)
{
}

// Rows clear the border and fill the label background; the header does it the other way round.
QString ViewItem::styleSheetText() const
{
    return QStringLiteral("border-color:%1;background-color:%2;font: %3px \"%4\";color: %5")
        .arg(QStringLiteral("rgba(255,255,255,0)"), colorToText(m_backgroundColor, QStringLiteral("RGBA")),
             QString::number(m_fontSize), m_fontFamily, colorToText(m_fontColor, QStringLiteral("RGBA")));
}

void ViewItem::setItemContents(const QStringList& texts, const QList<int>& weights)
{
    m_weights = weights;
    vorlin::padWeights(m_weights, texts.size());
    if (!m_labelsMade) {
        // A view of thousands of rows shows a few dozen: the others need no widgets yet.
        m_pendingTexts = texts;
        m_pendingRefreshed = qMin(m_pendingRefreshed, texts.size());
        m_labelsPending = true;
        if (!m_heldByView && testAttribute(Qt::WA_WState_Polished))
            makePendingLabels();
        return;
    }
    // Labels made here get the style text with a closing ";", later refreshes the one without;
    // both read the same.
    const QString style = styleSheetText() + QLatin1Char(';');
    const QFont font = labelFont();
    vorlin::syncCells(m_cells, texts.size(), [&] {
        QLabel* label = makeLabel(style, font);
        label->show();
        return label;
    });
    for (int i = 0; i < texts.size(); ++i) {
        if (auto* label = qobject_cast<QLabel*>(m_cells.at(i)))
            label->setText(texts.at(i));
    }
    updateSeparators();
    scheduleRelayout();
}

QLabel* ViewItem::makeLabel(const QString& styleSheet, const QFont& font)
{
    auto* label = new QLabel(this);
    label->setStyleSheet(styleSheet);
    label->setFont(font);
    label->installEventFilter(this);
    return label;
}

QFont ViewItem::labelFont() const
{
    QFont font = this->font();
    font.setFamily(m_fontFamily);
    font.setPixelSize(m_fontSize);
    return font;
}

void ViewItem::makePendingLabels()
{
    m_labelsMade = true;
    if (!m_labelsPending)
        return;
    m_labelsPending = false;
    // Each label gets the style text it would have had if made at once: the refreshed one if
    // a style change came after its text, else the one with the closing ";".
    const QString refreshed = styleSheetText();
    const QString fresh = refreshed + QLatin1Char(';');
    const QFont font = labelFont();
    for (int i = 0; i < m_pendingTexts.size(); ++i) {
        QLabel* label = makeLabel(i < m_pendingRefreshed ? refreshed : fresh, font);
        label->setText(m_pendingTexts.at(i));
        m_cells.append(label);
    }
    m_pendingTexts.clear();
    m_pendingRefreshed = 0;
    updateSeparators();
    // Laid out before they are shown, and at once: the row may be painted before the event
    // loop comes round again.
    layoutCells(size());
    for (QWidget* cell : qAsConst(m_cells))
        cell->show();
}

QList<QWidget*> ViewItem::getItemWidgets() const
{
    // The cells exist for the caller as soon as the contents are set.
    const_cast<ViewItem*>(this)->makePendingLabels();
    return m_cells;
}

void ViewItem::setItemWidgets(QList<QWidget*>& widgets, QList<int> weights)
{
    m_labelsMade = true;
    m_labelsPending = false;
    m_pendingTexts.clear();
    m_pendingRefreshed = 0;
    for (QWidget* old : qAsConst(m_cells)) {
        if (!widgets.contains(old)) {
            old->hide();
            old->deleteLater();
        }
    }
    m_cells = widgets;
    vorlin::padWeights(weights, widgets.size());
    m_weights = weights;
    for (QWidget* widget : qAsConst(m_cells)) {
        widget->setParent(this);
        widget->installEventFilter(this);
        widget->show();
    }
    updateSeparators();
    scheduleRelayout();
}

// Lays the cells out again once the event loop runs. A queued call delivers the resize event
// rather than a posted QResizeEvent: Qt folds posted resize events together by searching all
// pending events, which adds up when thousands of rows are filled in one go.
void ViewItem::scheduleRelayout()
{
    if (m_relayoutPending)
        return;
    m_relayoutPending = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            m_relayoutPending = false;
            QResizeEvent relayout(size(), size());
            QCoreApplication::sendEvent(this, &relayout);
        },
        Qt::QueuedConnection);
}

void ViewItem::updateSeparators()
{
    if (!m_bottomLine) {
        m_bottomLine = new SeparateLineWidget(this);
        vorlin::setGridLineColor(m_bottomLine, m_horizontalLineColor);
        m_bottomLine->installEventFilter(this);
    }
    vorlin::syncSeparators(m_separators, m_cells.size(), this, m_verticalLineColor);
    for (SeparateLineWidget* line : qAsConst(m_separators))
        line->installEventFilter(this); // installing twice keeps one filter
}

// Every widget shown posts itself a deferred update. In a scroll area holding thousands of
// rows, the repaint manager would clip each such update against all sibling rows; a row out
// of sight needs none, since scrolling it into view repaints it anyway.
bool ViewItem::isScrolledAway() const
{
    const QWidget* content = parentWidget();
    const QWidget* viewport = content ? content->parentWidget() : nullptr;
    if (!viewport || !qobject_cast<const QAbstractScrollArea*>(viewport->parentWidget()))
        return false;
    return !viewport->rect().intersects(QRect(mapTo(viewport, QPoint()), size()));
}

// Work a row out of sight can skip: deferred updates, and the polish every new widget asks
// for on the next pass of the event loop while the row waits in a view to be shown (showing
// it polishes it).
bool ViewItem::isSkippable(const QEvent* event) const
{
    return (event->type() == QEvent::UpdateLater && isScrolledAway())
           || (event->type() == QEvent::PolishRequest && m_showPending);
}

bool ViewItem::event(QEvent* event)
{
    if (isSkippable(event))
        return true;
    // A row on its own makes its labels before it is first shown.
    if (event->type() == QEvent::Polish && !m_heldByView)
        makePendingLabels();
    return QWidget::event(event);
}

bool ViewItem::eventFilter(QObject* watched, QEvent* event)
{
    if (isSkippable(event))
        return true;
    return QWidget::eventFilter(watched, event);
}

void ViewItem::setFontStyle(int pixelSize, const QColor& color, const QString& family)
{
    m_fontColor = color;
    m_fontFamily = family;
    m_fontSize = qMax(9, pixelSize);
    updateStyleSheet();
}

void ViewItem::updateStyleSheet()
{
    const QString style = styleSheetText();
    m_pendingRefreshed = m_pendingTexts.size();
    const QFont font = labelFont();
    for (QWidget* cell : qAsConst(m_cells)) {
        if (auto* label = qobject_cast<QLabel*>(cell)) {
            label->setStyleSheet(style);
            label->setFont(font);
        }
    }
}

void ViewItem::setItemLineColor(const QColor& vertical, const QColor& horizontal)
{
    m_verticalLineColor = vertical;
    m_horizontalLineColor = horizontal;
    if (m_bottomLine)
        vorlin::setGridLineColor(m_bottomLine, horizontal);
    for (SeparateLineWidget* line : qAsConst(m_separators))
        vorlin::setGridLineColor(line, vertical);
}

void ViewItem::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    updateStyleSheet();
    update();
}

void ViewItem::setItemBackcolorEnabled(bool enabled)
{
    m_filled = enabled;
    update();
}

void ViewItem::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_filled ? m_backgroundColor : QColor(255, 255, 255, 0));
    QStyleOption option;
    option.initFrom(this);
    style()->drawPrimitive(QStyle::PE_Widget, &option, &painter, this);
}

void ViewItem::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutCells(event->size());
}

void ViewItem::layoutCells(const QSize& size)
{
    if (m_cells.isEmpty())
        return;
    vorlin::layoutColumns(m_cells, m_weights, m_separators, size.width(), size.height(), 4, 8);
    m_bottomLine->setGeometry(0, size.height() - 2, size.width(), 2);
}
