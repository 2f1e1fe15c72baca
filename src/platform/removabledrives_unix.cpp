#include "removabledrives.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QStorageInfo>

namespace vorlin {
namespace platform {

namespace {

bool readsOne(const QString& path)
{
    QFile flag(path);
    return flag.open(QIODevice::ReadOnly) && flag.read(1) == "1";
}

// A partition (sdb1) carries no flag of its own; its disk (sdb), the parent folder of the
// partition's sysfs node, does.
bool isRemovableBlockDevice(const QString& device)
{
    if (!device.startsWith(QLatin1String("/dev/")))
        return false;
    const QString node = QFileInfo(QStringLiteral("/sys/class/block/") + QFileInfo(device).fileName()).canonicalFilePath();
    if (node.isEmpty())
        return false;
    return readsOne(node + QLatin1String("/removable")) || readsOne(node + QLatin1String("/../removable"));
}

} // namespace

QStringList removableDriveRoots()
{
    QStringList roots;
    const QList<QStorageInfo> volumes = QStorageInfo::mountedVolumes();
    for (const QStorageInfo& volume : volumes) {
        if (volume.isValid() && isRemovableBlockDevice(QFile::decodeName(volume.device())))
            roots.append(volume.rootPath());
    }
    return roots;
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
