#include "textstorage.h"
#include "textstorage_p.h"

#include "libvorlin.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QMetaMethod>
#include <QtCore/QMutexLocker>
#include <QtCore/QThread>

namespace {

// The split limit is computed in 32 bits and then widened with its sign, so split sizes
// of 2048 MB and more wrap to a negative or small limit. This width is deliberate.
qint64 splitLimitBytes(qint32 sizeMB)
{
    return qint64(qint32(quint32(sizeMB) << 20));
}

// Log text is nearly all ASCII, which is its own UTF-8: copied byte by byte it needs no
// conversion buffer of its own.
void appendUtf8(QByteArray& out, const QString& text)
{
    const int start = out.size();
    out.resize(start + text.size());
    char* to = out.data() + start;
    for (const QChar c : text) {
        if (c.unicode() >= 0x80) {
            out.resize(start);
            out += text.toUtf8();
            return;
        }
        *to++ = char(c.unicode());
    }
}

// Below this many lines a batch means the log thread keeps up with the producers.
constexpr int kSmallBatch = 256;
constexpr unsigned long kGatherMicroseconds = 200;
// Lines beyond this many are freed by the log thread, so that a burst's memory is not kept.
constexpr int kMaxHandedBack = 1024;

} // namespace

TextStorageImpl::TextStorageImpl(const QString& folder)
    : folder(folder)
{
}

TextStorageImpl::~TextStorageImpl()
{
    delete file;
}

bool TextStorageImpl::isCurrentFileFull() const
{
    return file->size() >= splitLimitBytes(splitSizeMB);
}

void TextStorageImpl::beginNewFile()
{
    delete file;
    const QString name = folder + QStringLiteral("/gcs_client ")
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hh_mm_ss.log"));
    file = new QFile(name);
    // Neither append nor truncate: a second file begun within the same second overwrites
    // the first one from its start. Unbuffered: every line is one write to the system.
    file->open(QIODevice::ReadWrite | QIODevice::Unbuffered);
}

void TextStorageImpl::writeLines(const QStringList& lines)
{
    if (!file || !file->isOpen())
        return;
    // UTF-8 on every platform. Each line goes to the operating system before the next one is
    // taken (the file is unbuffered), so a crash loses at most the line being written.
    QByteArray bytes;
    bytes.reserve(256); // kept across lines: resizing within it allocates nothing
    for (const QString& line : lines) {
        bytes.resize(0);
        appendUtf8(bytes, line);
        bytes += '\n';
        file->write(bytes);
    }
}

void TextStorageImpl::handBack(QStringList& lines)
{
    // Only this thread adds to the written lines, so they can be merged outside the lock.
    QStringList merged;
    {
        QMutexLocker locker(&lock);
        merged.swap(written);
    }
    if (merged.size() + lines.size() > kMaxHandedBack) {
        // The lines stay with the caller, which frees them.
    } else if (merged.isEmpty()) {
        merged.swap(lines);
    } else {
        // Moved over by swapping, so that the log thread touches no reference count of a line.
        merged.reserve(merged.size() + lines.size());
        for (QString& line : lines) {
            merged.append(QString());
            merged.last().swap(line);
        }
    }
    QMutexLocker locker(&lock);
    written.swap(merged);
}

QStringList TextStorageImpl::takePending()
{
    QMutexLocker locker(&lock);
    QStringList taken;
    taken.swap(pending);
    return taken;
}

void TextStorageImpl::saveBatches()
{
    QStringList batch = takePending();
    while (!batch.isEmpty()) {
        QMutexLocker fileLocker(&fileLock);
        // Checked once per batch, so a file may grow past the limit by one batch.
        if (!file) {
            beginNewFile();
        } else {
            file->flush();
            if (isCurrentFileFull())
                beginNewFile();
        }
        writeLines(batch);
        fileLocker.unlock();
        const bool keepingUp = batch.size() < kSmallBatch;
        handBack(batch);
        // A writer that keeps up would take the lines one or two at a time, and every take
        // makes the next producer post a new request. A short pause lets a burst gather.
        if (keepingUp)
            QThread::usleep(kGatherMicroseconds);
        batch = takePending();
    }
}

TextStorage::TextStorage(const QString& folder, QObject* parent)
    : QObject(parent)
    , d(new TextStorageImpl(folder))
{
    QDir().mkpath(folder);
    d->flushTimer = new QTimer(this);
    d->flushTimer->setInterval(1000);
    d->flushTimer->setSingleShot(true);
    connect(d->flushTimer, &QTimer::timeout, this, &TextStorage::slotDoSaveText);
}

TextStorage::~TextStorage()
{
    d->saveBatches();
    delete d->flushTimer;
    d->flushTimer = nullptr;
}

void TextStorage::appendLine(const QString& line)
{
    if (libVorlin::isImmediateQuit())
        return;
    bool firstOfBurst;
    QString spent; // freed here, after the lock is released
    {
        QMutexLocker locker(&d->lock);
        d->pending.append(line);
        firstOfBurst = d->pending.size() == 1;
        if (!d->written.isEmpty())
            spent = d->written.takeLast();
    }
    // Only the first line of a burst asks the log thread to write. The request is posted
    // outside the lock, which producers and the log thread would otherwise queue on. The slot
    // is looked up by name once; the lookup would otherwise cost more than the rest of the call.
    static const QMetaMethod saveText = staticMetaObject.method(staticMetaObject.indexOfSlot("slotDoSaveText()"));
    if (firstOfBurst)
        saveText.invoke(this, Qt::AutoConnection);
}

void TextStorage::writeLineNow(const QString& line)
{
    QMutexLocker locker(&d->lock);
    QMutexLocker fileLocker(&d->fileLock);
    d->pending.append(line);
    if (!d->file)
        d->beginNewFile();
    d->writeLines(d->pending);
    d->pending.clear();
}

void TextStorage::changePath(const QString& folder)
{
    QDir().mkpath(folder);
    QMetaObject::invokeMethod(this, "slotChangePath", Q_ARG(QString, folder));
}

void TextStorage::changeSplitSize(int sizeMB)
{
    if (sizeMB > 0)
        QMetaObject::invokeMethod(this, "slotSplitSizeChanged", Q_ARG(int, sizeMB));
}

QString TextStorage::currentPath() const
{
    QMutexLocker locker(&d->lock);
    return d->folder;
}

void TextStorage::slotDoSaveText()
{
    d->flushTimer->stop();
    d->saveBatches();
    d->flushTimer->start();
}

void TextStorage::slotChangePath(QString folder)
{
    {
        QMutexLocker locker(&d->lock);
        if (folder == d->folder)
            return;
        d->folder = folder;
    }
    QMutexLocker fileLocker(&d->fileLock);
    d->beginNewFile();
}

void TextStorage::slotSplitSizeChanged(int sizeMB)
{
    d->splitSizeMB = sizeMB;
    QMutexLocker fileLocker(&d->fileLock);
    if (!d->file)
        return;
    d->file->flush();
    if (d->isCurrentFileFull())
        d->beginNewFile();
}
