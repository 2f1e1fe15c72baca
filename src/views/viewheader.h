#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QLabel;
class SeparateLineWidget;

// The fixed title row of a ViewWidget: one label per column, columns sized by integer
// weights, separator lines between them and a line above and below.
class VORLIN_EXPORT ViewHeader : public QWidget
{
    Q_OBJECT
public:
    explicit ViewHeader(QWidget* parent = nullptr);

    // Missing weights count 10. Lays out again on the event loop.
    void setHeaderContents(const QStringList& texts, QList<int> weights);
    void setFontStyle(int pixelSize, const QColor& color, const QString& family);
    void setLineColor(const QColor& vertical, const QColor& horizontal);
    void setBackgroundColor(const QColor& color);

    QStringList texts() const { return m_texts; }
    QList<int> weights() const { return m_weights; }
    QColor backgroundColor() const { return m_backgroundColor; }

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void applyStyle(QLabel* label) const;

    QStringList m_texts;
    QList<int> m_weights;
    QList<QLabel*> m_labels;
    QColor m_horizontalLineColor{204, 204, 204, 255};
    QColor m_verticalLineColor{204, 204, 204, 255};
    QColor m_backgroundColor{58, 62, 67, 255};
    QColor m_fontColor{255, 255, 255, 255};
    QString m_fontFamily = QStringLiteral("Microsoft YaHei");
    int m_fontSize = 12;
    QString m_styleSheet;
    SeparateLineWidget* m_topLine = nullptr;
    SeparateLineWidget* m_bottomLine = nullptr;
    QList<SeparateLineWidget*> m_separators;
};
