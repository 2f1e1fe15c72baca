#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QLabel;
class SeparateLineWidget;

// One row of a ViewWidget: cells that are either labels made from texts or the caller's own
// widgets, laid out by the same integer column weights as the header.
class VORLIN_EXPORT ViewItem : public QWidget
{
    Q_OBJECT
public:
    explicit ViewItem(QWidget* parent = nullptr);

    // One label per text; missing weights count 10. Lays out again on the event loop.
    // The labels are made when first needed: when the row is shown on its own, when a view
    // scrolls it into sight, or when getItemWidgets() asks for them.
    void setItemContents(const QStringList& texts, const QList<int>& weights);
    // The widgets become the cells, children of the row; cells they replace are released.
    void setItemWidgets(QList<QWidget*>& widgets, QList<int> weights);
    QList<QWidget*> getItemWidgets() const;

    void setFontStyle(int pixelSize, const QColor& color, const QString& family);
    void setItemLineColor(const QColor& vertical, const QColor& horizontal);
    void setBackgroundColor(const QColor& color);
    // Fills the whole row with the background colour (the view's row alternation).
    void setItemBackcolorEnabled(bool enabled);
    bool isItemBackcolorEnabled() const { return m_filled; }
    QColor backgroundColor() const { return m_backgroundColor; }

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    friend class ViewWidget;

    void makePendingLabels();
    QLabel* makeLabel(const QString& styleSheet, const QFont& font);
    QFont labelFont() const;
    void layoutCells(const QSize& size);
    bool isScrolledAway() const;
    bool isSkippable(const QEvent* event) const;
    void scheduleRelayout();
    QString styleSheetText() const;
    void updateStyleSheet();
    void updateSeparators();

    QList<QWidget*> m_cells;
    // Texts given before the labels were made; the first m_pendingRefreshed of them saw a
    // style change after they were given.
    QStringList m_pendingTexts;
    int m_pendingRefreshed = 0;
    bool m_labelsPending = false;
    bool m_labelsMade = false;
    // Set by a view holding the row: the view makes the labels once the row comes into sight.
    bool m_heldByView = false;
    // Added to a view and not yet shown by it.
    bool m_showPending = false;
    QList<int> m_weights;
    QColor m_verticalLineColor{204, 204, 204, 255};
    QColor m_horizontalLineColor{255, 255, 255, 0};
    bool m_filled = false;
    QColor m_backgroundColor{255, 255, 255, 0};
    QColor m_fontColor{255, 255, 255, 255};
    QString m_fontFamily = QStringLiteral("Microsoft YaHei");
    int m_fontSize = 12;
    // Made with the first cells: a row without any has nothing to underline.
    SeparateLineWidget* m_bottomLine = nullptr;
    QList<SeparateLineWidget*> m_separators;
    bool m_relayoutPending = false;
};
