#include "folderbrowse.h"

#ifndef Q_OS_WIN

#include <QtWidgets/QFileDialog>
#include <QtWidgets/QWidget>

namespace vorlin {
namespace platform {

QString browseForFolder(const QString& title, quintptr ownerWindow)
{
    QWidget* owner = ownerWindow ? QWidget::find(WId(ownerWindow)) : nullptr;
    return QFileDialog::getExistingDirectory(owner, title);
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
