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
    , m_bottomLine(new SeparateLineWidget(this))
{
    m_bottomLine->setColor(m_horizontalLineColor);
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
    // Labels made here get the style text with a closing ";", later refreshes the one without;
    // both read the same.
    const QString style = styleSheetText() + QLatin1Char(';');
    QFont font = this->font();
    font.setFamily(m_fontFamily);
    font.setPixelSize(m_fontSize);
    vorlin::syncCells(m_cells, texts.size(), [&] {
        auto* label = new QLabel(this);
        label->setStyleSheet(style);
        label->setFont(font);
        label->installEventFilter(this);
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

void ViewItem::setItemWidgets(QList<QWidget*>& widgets, QList<int> weights)
{
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

bool ViewItem::event(QEvent* event)
{
    if (event->type() == QEvent::UpdateLater && isScrolledAway())
        return true;
    return QWidget::event(event);
}

bool ViewItem::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::UpdateLater && isScrolledAway())
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
    QFont font = this->font();
    font.setFamily(m_fontFamily);
    font.setPixelSize(m_fontSize);
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
    m_bottomLine->setColor(horizontal);
    for (SeparateLineWidget* line : qAsConst(m_separators))
        line->setColor(vertical);
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
    if (m_cells.isEmpty())
        return;
    const int w = event->size().width();
    const int h = event->size().height();
    vorlin::layoutColumns(m_cells, m_weights, m_separators, w, h, 4, 8);
    m_bottomLine->setGeometry(0, h - 2, w, 2);
}
