#include "removabledrives.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFileInfo>

#include <windows.h>

namespace vorlin {
namespace platform {

QStringList removableDriveRoots()
{
    QStringList roots;
    const QFileInfoList drives = QDir::drives();
    for (const QFileInfo& drive : drives) {
        const QString root = QDir::toNativeSeparators(drive.absolutePath());
        if (::GetDriveTypeW(reinterpret_cast<const wchar_t*>(root.utf16())) == DRIVE_REMOVABLE)
            roots.append(drive.absolutePath());
    }
    return roots;
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
