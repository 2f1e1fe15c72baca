#include "namedmutex.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QString>

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace vorlin {
namespace platform {

struct NamedMutex
{
    int fd;
};

namespace {

QString lockFilePath(const QString& name)
{
    QString folder = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (folder.isEmpty() || !QDir(folder).exists())
        folder = QDir::tempPath();
    QString fileName = name;
    fileName.replace(QLatin1Char('/'), QLatin1Char('_'));
    return folder + QLatin1Char('/') + fileName + QLatin1String(".lock");
}

} // namespace

NamedMutex* acquireNamedMutex(const QString& name, bool* heldElsewhere)
{
    *heldElsewhere = false;
    const QByteArray path = QFile::encodeName(lockFilePath(name));
    const int fd = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
    if (fd < 0)
        return nullptr;
    // A lock taken through another descriptor fails even in the same process, which is
    // what makes a second test in the first instance see the mutex as taken.
    if (::flock(fd, LOCK_EX | LOCK_NB) != 0) {
        *heldElsewhere = (errno == EWOULDBLOCK);
        ::close(fd);
        return nullptr;
    }
    return new NamedMutex{fd};
}

void releaseNamedMutex(NamedMutex* mutex)
{
    if (!mutex)
        return;
    ::close(mutex->fd); // drops the lock; the file stays for the next start
    delete mutex;
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
