#pragma once

#include <QtCore/QFile>
#include <QtCore/QRecursiveMutex>
#include <QtCore/QStringList>
#include <QtCore/QTimer>

class TextStorageImpl
{
public:
    explicit TextStorageImpl(const QString& folder);
    ~TextStorageImpl();

    bool isCurrentFileFull() const;
    void beginNewFile();
    void writeLines(const QStringList& lines);
    void handBack(QStringList& lines);
    QStringList takePending();
    void saveBatches();

    qint32 splitSizeMB = 50;
    QString folder;
    QStringList pending;
    // Lines the log thread has written, left for producers to free one per appended line:
    // memory freed in another thread than the one that allocated it makes the allocator
    // lock the producer's arena, and producer and log thread then wait on each other.
    QStringList written;
    mutable QRecursiveMutex lock;
    // Serialises the file between the log thread and a fatal line written from elsewhere;
    // producers never take it, so they never wait for the disk.
    QMutex fileLock;
    QFile* file = nullptr;
    QTimer* flushTimer = nullptr;
};
