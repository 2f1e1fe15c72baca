#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QScrollArea;
class ViewHeader;
class ViewItem;

// A light-weight table of widgets: a fixed header above a vertically scrolling column of
// rows, every row repeating the header's weighted column geometry. The view owns the rows
// it holds. Structural changes lay out on the next pass of the event loop. A row is shown,
// and the labels of its texts made, when it first comes into sight, so that tables of
// thousands of rows cost little more than the rows on screen.
class VORLIN_EXPORT ViewWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ViewWidget(QWidget* parent = nullptr);

    void setHeaderContents(const QStringList& texts, const QList<int>& weights);
    void setHeaderFont(const QColor& color, int pixelSize, const QString& family);
    // At least 24 pixels.
    void setHeaderHeight(int height);
    void setHeaderBackgroundColor(const QColor& color);

    // Apply to the rows held now; rows added later keep their own look.
    void setItemFont(const QColor& color, int pixelSize, const QString& family);
    void setItemBackgroundColor(const QColor& color);
    // At least 24 pixels.
    void setItemHeight(int height);

    void setInsideLineColor(const QColor& vertical, const QColor& horizontal);
    void setOutsideBorderColor(const QColor& color);
    QColor outsideBorderColor() const { return m_outsideBorderColor; }
    // Fills every second row (the second, fourth, ...) with its background colour.
    void enableSeparateColor(bool enable);

    // Null rows and rows already held are ignored.
    void appendViewItem(ViewItem* item);
    void insertViewItem(int index, ViewItem* item);
    void removeViewItem(ViewItem* item);
    void removeAll();
    QList<ViewItem*> allItems() const { return m_items; }

    ViewHeader* header() const { return m_header; }
    QScrollArea* scrollArea() const { return m_scrollArea; }
    int headerHeight() const { return m_headerHeight; }
    int itemHeight() const { return m_itemHeight; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyAlternation();
    void bringIntoSight(ViewItem* item);
    void bringRowsIntoSight();
    void relayout();

    ViewHeader* m_header = nullptr;
    QList<ViewItem*> m_items;
    QScrollArea* m_scrollArea = nullptr;
    QWidget* m_content = nullptr;
    QColor m_outsideBorderColor{204, 204, 204, 255};
    bool m_alternate = true;
    QColor m_insideVerticalColor{255, 255, 255, 0};
    QColor m_insideHorizontalColor{255, 255, 255, 0};
    QColor m_headerBackgroundColor{58, 62, 67, 255};
    int m_headerFontSize = 12;
    QColor m_headerFontColor{255, 255, 255, 255};
    QString m_headerFontFamily = QStringLiteral("Microsoft YaHei");
    int m_headerHeight = 30;
    int m_itemHeight = 30;
    bool m_layoutPending = false;
};
