#pragma once

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class SeparateLineWidget;

// Column bookkeeping shared by the table view's header and rows.
namespace vorlin {

// Pads the weights with 10 until there is one per column.
void padWeights(QList<int>& weights, int columns);

// Keeps count cells: surplus ones from the end are hidden and released with deleteLater,
// missing ones are made by make().
template <typename Cell, typename Make>
void syncCells(QList<Cell*>& cells, int count, Make make)
{
    while (cells.size() > count) {
        Cell* cell = cells.takeLast();
        cell->hide();
        cell->deleteLater();
    }
    while (cells.size() < count)
        cells.append(make());
}

// Gives a grid line its colour. A fully transparent line draws nothing and stays hidden, so
// that a row of a table costs no paint for it (a table's inner lines are transparent unless
// the application colours them).
void setGridLineColor(SeparateLineWidget* line, const QColor& color);

// Keeps columns + 1 separators: surplus ones from the front are deleted at once, new ones
// are made in the colour given.
void syncSeparators(QList<SeparateLineWidget*>& separators, int columns, QWidget* parent, const QColor& color);

// Places cells and separators across the width by the weights. Cell i sits 8 pixels right
// of its separator, from top down to height - verticalInsets + top; the last cell keeps 6
// pixels more off the right edge. The last separator always sits at the right edge.
void layoutColumns(const QList<QWidget*>& cells, const QList<int>& weights,
                   const QList<SeparateLineWidget*>& separators, int width, int height, int top,
                   int verticalInsets);

} // namespace vorlin
