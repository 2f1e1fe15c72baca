#include "viewheader.h"

#include "colortotext.h"
#include "columnlayout_p.h"
#include "separatelinewidget.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QPainter>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

ViewHeader::ViewHeader(QWidget* parent)
    : QWidget(parent)
    , m_topLine(new SeparateLineWidget(this))
    , m_bottomLine(new SeparateLineWidget(this))
{
    m_topLine->setColor(m_horizontalLineColor);
    m_bottomLine->setColor(m_horizontalLineColor);
    setFontStyle(m_fontSize, m_fontColor, m_fontFamily);
}

void ViewHeader::setHeaderContents(const QStringList& texts, QList<int> weights)
{
    m_texts = texts;
    vorlin::padWeights(weights, texts.size());
    m_weights = weights;
    vorlin::syncCells(m_labels, texts.size(), [this] {
        auto* label = new QLabel(this);
        applyStyle(label);
        label->show();
        return label;
    });
    for (int i = 0; i < texts.size(); ++i)
        m_labels.at(i)->setText(texts.at(i));
    // New separators take the horizontal line colour until setLineColor is next called.
    vorlin::syncSeparators(m_separators, texts.size(), this, m_horizontalLineColor);
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void ViewHeader::setFontStyle(int pixelSize, const QColor& color, const QString& family)
{
    m_fontColor = color;
    m_fontFamily = family;
    m_fontSize = qMax(9, pixelSize);
    for (QLabel* label : qAsConst(m_labels))
        applyStyle(label);
}

// The header fills the border with its background and leaves the label background clear;
// rows do it the other way round.
void ViewHeader::applyStyle(QLabel* label) const
{
    label->setStyleSheet(QStringLiteral("border-color:%1;background-color:%2;font: %3px \"%4\";color: %5")
                             .arg(colorToText(m_backgroundColor, QStringLiteral("RGBA")),
                                  QStringLiteral("rgba(255,255,255,0)"), QString::number(m_fontSize), m_fontFamily,
                                  colorToText(m_fontColor, QStringLiteral("RGBA"))));
    QFont font = label->font();
    font.setFamily(m_fontFamily);
    font.setPixelSize(m_fontSize);
    label->setFont(font);
}

void ViewHeader::setLineColor(const QColor& vertical, const QColor& horizontal)
{
    m_verticalLineColor = vertical;
    m_horizontalLineColor = horizontal;
    m_topLine->setColor(horizontal);
    m_bottomLine->setColor(horizontal);
    for (SeparateLineWidget* line : qAsConst(m_separators))
        vorlin::setGridLineColor(line, vertical);
}

void ViewHeader::setBackgroundColor(const QColor& color)
{
    m_backgroundColor = color;
    for (QLabel* label : qAsConst(m_labels))
        applyStyle(label);
    update();
}

void ViewHeader::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), m_backgroundColor);
}

void ViewHeader::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const bool hasCells = !m_labels.isEmpty();
    m_topLine->setVisible(hasCells);
    m_bottomLine->setVisible(hasCells);
    if (!hasCells)
        return;
    const int w = event->size().width();
    const int h = event->size().height();
    m_topLine->setGeometry(0, 0, w, 2);
    const QList<QWidget*> cells(m_labels.cbegin(), m_labels.cend());
    vorlin::layoutColumns(cells, m_weights, m_separators, w, h, 3, 6);
    m_bottomLine->setGeometry(0, h - 2, w, 2);
}
