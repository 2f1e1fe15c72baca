#include "columnlayout_p.h"

#include "separatelinewidget.h"

#include <algorithm>

namespace vorlin {

void padWeights(QList<int>& weights, int columns)
{
    while (weights.size() < columns)
        weights.append(10);
}

void setGridLineColor(SeparateLineWidget* line, const QColor& color)
{
    line->setColor(color);
    line->setVisible(color.alpha() != 0);
}

void syncSeparators(QList<SeparateLineWidget*>& separators, int columns, QWidget* parent, const QColor& color)
{
    while (separators.size() > columns + 1)
        delete separators.takeFirst();
    while (separators.size() < columns + 1) {
        auto* line = new SeparateLineWidget(parent);
        setGridLineColor(line, color);
        separators.append(line);
    }
}

void layoutColumns(const QList<QWidget*>& cells, const QList<int>& weights,
                   const QList<SeparateLineWidget*>& separators, int width, int height, int top,
                   int verticalInsets)
{
    const int weighted = std::min(cells.size(), weights.size());
    int total = 0;
    for (int i = 0; i < weighted; ++i)
        total += weights.at(i);
    if (weighted < 1 || total <= 0)
        total = 1;

    // The remainder of the division is spread evenly over the columns; what is left of it
    // stays at the right edge.
    const int unit = width / total;
    const int extra = (width % total) / std::max(cells.size(), 1);

    int x = 0;
    for (int i = 0; i < cells.size(); ++i) {
        const int columnWidth = weights.value(i, 0) * unit + extra;
        if (i < separators.size())
            separators.at(i)->setGeometry(x, 0, 2, height);
        const int rightInset = i == cells.size() - 1 ? 6 : 0;
        cells.at(i)->setGeometry(x + 8, top, columnWidth - rightInset - 16, height - verticalInsets);
        x += columnWidth;
    }
    if (!separators.isEmpty())
        separators.last()->setGeometry(width - 2, 0, 2, height);
}

} // namespace vorlin
