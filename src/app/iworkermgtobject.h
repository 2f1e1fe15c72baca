#pragma once

#include "vorlinglobal.h"

#include <QtCore/QMutex>
#include <QtCore/QObject>

class QThread;

// Owns one worker thread and moves helper objects into it; the workers are deleted when
// the thread ends.
class VORLIN_EXPORT IWorkerMgtObject : public QObject
{
    Q_OBJECT
public:
    explicit IWorkerMgtObject(QObject* parent = nullptr);
    ~IWorkerMgtObject() override;

public Q_SLOTS:
    virtual void slotFinishThread();

protected:
    void initMgtThread();
    void attach2Worker(QObject* worker);
    // Waits for the thread while keeping the interface alive; the thread is gone afterwards.
    void quitMgtThread();

    QThread* workerThread() const;

    // Guards the shared state of derived classes.
    QMutex m_mutex;

private:
    QThread* m_thread = nullptr;
};
