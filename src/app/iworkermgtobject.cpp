#include "iworkermgtobject.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QThread>

IWorkerMgtObject::IWorkerMgtObject(QObject* parent)
    : QObject(parent)
{
    setObjectName(QStringLiteral("IWorkerMgtObject"));
}

IWorkerMgtObject::~IWorkerMgtObject()
{
    quitMgtThread();
}

void IWorkerMgtObject::slotFinishThread()
{
}

void IWorkerMgtObject::initMgtThread()
{
    if (m_thread)
        return;
    m_thread = new QThread(this);
    connect(m_thread, &QThread::finished, this, &IWorkerMgtObject::slotFinishThread, Qt::UniqueConnection);
    m_thread->start(QThread::InheritPriority);
}

void IWorkerMgtObject::attach2Worker(QObject* worker)
{
    if (!m_thread || !worker)
        return;
    connect(m_thread, &QThread::finished, worker, &QObject::deleteLater, Qt::UniqueConnection);
    worker->moveToThread(m_thread);
}

void IWorkerMgtObject::quitMgtThread()
{
    if (!m_thread)
        return;
    m_thread->requestInterruption();
    m_thread->quit();
    while (m_thread->isRunning()) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
        m_thread->wait(5); // processEvents returns at once when nothing is queued
    }
    delete m_thread;
    m_thread = nullptr;
}

QThread* IWorkerMgtObject::workerThread() const
{
    return m_thread;
}
