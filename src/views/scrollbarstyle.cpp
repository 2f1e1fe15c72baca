#include "scrollbarstyle_p.h"

#include <QtCore/QFile>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QScrollBar>

namespace vorlin {

void applyScrollBarStyle(QScrollArea* area)
{
    QFile file(QStringLiteral(":/Style/QScrollBar.qss"));
    if (!file.open(QIODevice::ReadOnly))
        return;
    area->verticalScrollBar()->setStyleSheet(QString::fromUtf8(file.readAll()));
    // Read again at the end of the file, so this is empty on purpose.
    area->horizontalScrollBar()->setStyleSheet(QString::fromUtf8(file.readAll()));
}

} // namespace vorlin
