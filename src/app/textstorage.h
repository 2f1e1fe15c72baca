#pragma once

#include "vorlinglobal.h"

#include <QtCore/QObject>
#include <QtCore/QSharedPointer>

class TextStorageImpl;

// Writes log lines to rolling text files from the log thread. Producers in any thread
// hand in finished lines; a burst of lines costs one cross-thread request and is written
// as one batch. Files are named "gcs_client yyyy-MM-dd hh_mm_ss.log" and split by size.
class VORLIN_EXPORT TextStorage : public QObject
{
    Q_OBJECT
public:
    explicit TextStorage(const QString& folder, QObject* parent = nullptr);
    ~TextStorage() override;

    // Queues a line for the next batch; dropped once the library is quitting.
    void appendLine(const QString& line);
    // Writes the pending lines and this one from the calling thread before returning.
    void writeLineNow(const QString& line);
    void changePath(const QString& folder);
    // Values of zero or less are ignored.
    void changeSplitSize(int sizeMB);
    QString currentPath() const;

public Q_SLOTS:
    void slotDoSaveText();
    void slotChangePath(QString folder);
    void slotSplitSizeChanged(int sizeMB);

private:
    QSharedPointer<TextStorageImpl> d;
};
