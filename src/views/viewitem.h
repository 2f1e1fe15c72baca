#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class SeparateLineWidget;

// One row of a ViewWidget: cells that are either labels made from texts or the caller's own
// widgets, laid out by the same integer column weights as the header.
class VORLIN_EXPORT ViewItem : public QWidget
{
    Q_OBJECT
public:
    explicit ViewItem(QWidget* parent = nullptr);

    // One label per text; missing weights count 10. Lays out again on the event loop.
    void setItemContents(const QStringList& texts, const QList<int>& weights);
    // The widgets become the cells, children of the row; cells they replace are released.
    void setItemWidgets(QList<QWidget*>& widgets, QList<int> weights);
    QList<QWidget*> getItemWidgets() const { return m_cells; }

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
    bool isScrolledAway() const;
    void scheduleRelayout();
    QString styleSheetText() const;
    void updateStyleSheet();
    void updateSeparators();

    QList<QWidget*> m_cells;
    QList<int> m_weights;
    QColor m_verticalLineColor{204, 204, 204, 255};
    QColor m_horizontalLineColor{255, 255, 255, 0};
    bool m_filled = false;
    QColor m_backgroundColor{255, 255, 255, 0};
    QColor m_fontColor{255, 255, 255, 255};
    QString m_fontFamily = QStringLiteral("Microsoft YaHei");
    int m_fontSize = 12;
    SeparateLineWidget* m_bottomLine = nullptr;
    QList<SeparateLineWidget*> m_separators;
    bool m_relayoutPending = false;
};
