#include "custommovieevent.h"
#include "customevent.h"
#include "itoolobject.h"
#include "iworkermgtobject.h"
#include "precisetimer.h"

#include <QtCore/QAtomicInt>
#include <QtCore/QMutex>
#include <QtCore/QThread>
#include <QtGui/QImage>
#include <QtTest/QtTest>

namespace {

QMutex s_logLock;
QStringList s_log;

void captureHandler(QtMsgType, const QMessageLogContext&, const QString& text)
{
    QMutexLocker locker(&s_logLock);
    s_log << text;
}

class EventProbe : public IToolObject
{
public:
    QList<QPair<int, QString>> texts;
    QList<QImage*> images;
    QList<QThread*> threads;

protected:
    void customEvent(QEvent* event) override
    {
        threads << QThread::currentThread();
        if (event->type() == CustomEvent::CustomEventType)
            texts << qMakePair(int(event->type()), static_cast<CustomEvent*>(event)->userData());
        else if (event->type() == CustomMovieEvent::ComMoviEventType)
            images << static_cast<CustomMovieEvent*>(event)->movieImage();
    }
};

class Manager : public IWorkerMgtObject
{
public:
    using IWorkerMgtObject::attach2Worker;
    using IWorkerMgtObject::initMgtThread;
    using IWorkerMgtObject::quitMgtThread;
    using IWorkerMgtObject::workerThread;
};

} // namespace

class WorkersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eventsCarryTextsAndFrames()
    {
        qInstallMessageHandler(captureHandler);
        EventProbe probe;
        CustomEvent::SyncSendEvent(QStringLiteral("now"), &probe);
        QCOMPARE(probe.texts.size(), 1); // delivered before returning
        QCOMPARE(probe.texts.first().second, QStringLiteral("now"));

        QImage frame(4, 4, QImage::Format_RGB32);
        QThread* poster = QThread::create([&probe, &frame] {
            CustomEvent::AsyncPostEvent(QStringLiteral("from a worker"), &probe);
            CustomMovieEvent::AsyncPostEvent(&frame, &probe);
        });
        poster->start();
        poster->wait();
        delete poster;
        QCOMPARE(probe.texts.size(), 1); // posted, not yet delivered
        QCoreApplication::processEvents();
        QCOMPARE(probe.texts.size(), 2);
        QCOMPARE(probe.texts.last().second, QStringLiteral("from a worker"));
        QCOMPARE(probe.images, QList<QImage*>{&frame});
        QVERIFY(std::all_of(probe.threads.cbegin(), probe.threads.cend(),
                            [](QThread* t) { return t == QThread::currentThread(); }));
        qInstallMessageHandler(nullptr);
        QVERIFY(s_log.contains(QStringLiteral("delete CustomEvent(). user data: \"now\"")));
        QVERIFY(s_log.contains(QStringLiteral("delete CustomEvent(). user data: \"from a worker\"")));
    }

    void workerThreadOwnsAttachedObjects()
    {
        Manager manager;
        QPointer<QObject> early = new QObject;
        manager.attach2Worker(early); // no thread yet: nothing happens
        QCOMPARE(early->thread(), QThread::currentThread());
        delete early;

        manager.initMgtThread();
        QThread* thread = manager.workerThread();
        QVERIFY(thread && thread->isRunning());
        manager.initMgtThread();
        QCOMPARE(manager.workerThread(), thread);
        QCOMPARE(manager.findChildren<QThread*>().size(), 1);

        QPointer<QObject> worker = new QObject;
        manager.attach2Worker(worker);
        QCOMPARE(worker->thread(), thread);
        manager.quitMgtThread();
        QCOMPARE(manager.workerThread(), nullptr);
        QTRY_VERIFY(worker.isNull()); // deleted when the thread ended
    }

    void preciseTimerTicksFromItsOwnThread()
    {
        PreciseTimer timer;
        QAtomicInt ticks;
        QThread* tickThread = nullptr;
        connect(&timer, &PreciseTimer::timeout, this, [&] {
            tickThread = QThread::currentThread();
            ticks.fetchAndAddRelaxed(1);
        }, Qt::DirectConnection);
        // An ordinary connection is queued to the receiver's thread. The timer as context drops
        // calls still queued when it goes.
        QThread* queuedIn = nullptr;
        connect(&timer, &PreciseTimer::timeout, &timer, [&] { queuedIn = QThread::currentThread(); });
        timer.start(2);
        QVERIFY(timer.timerId() != 0);
        QTRY_VERIFY(ticks.loadRelaxed() >= 5 && queuedIn);
        timer.stop();
        QCOMPARE(timer.timerId(), 0u);
        QVERIFY(tickThread && tickThread != QThread::currentThread());
        QCOMPARE(queuedIn, QThread::currentThread());
        const int stopped = ticks.loadRelaxed();
        QTest::qWait(50);
        QCOMPARE(ticks.loadRelaxed(), stopped); // stop waited for the last tick; none after it
    }

    void restartLeavesOneTimerWithTheNewPeriod()
    {
        PreciseTimer timer;
        QAtomicInt ticks;
        connect(&timer, &PreciseTimer::timeout, this, [&] { ticks.fetchAndAddRelaxed(1); }, Qt::DirectConnection);
        timer.start(1);
        const unsigned first = timer.timerId();
        timer.start(200);
        QVERIFY(timer.timerId() != first);
        ticks.storeRelaxed(0);
        QElapsedTimer elapsed;
        elapsed.start();
        QTest::qWait(500);
        // One 200 ms timer ticks about once per 200 ms of wall time, however slow the machine; a
        // 1 ms timer left running would tick hundreds of times.
        const int allowed = int(elapsed.elapsed() / 200) + 2;
        QVERIFY2(ticks.loadRelaxed() <= allowed, qPrintable(QString::number(ticks.loadRelaxed())));
        QVERIFY(ticks.loadRelaxed() >= 1);
    }

    void stopFromTheTimeoutItself()
    {
        PreciseTimer timer;
        QAtomicInt ticks;
        connect(&timer, &PreciseTimer::timeout, this, [&] {
            ticks.fetchAndAddRelaxed(1);
            timer.stop();
        }, Qt::DirectConnection);
        timer.start(1);
        QTRY_COMPARE(ticks.loadRelaxed(), 1);
        QTest::qWait(30);
        QCOMPARE(ticks.loadRelaxed(), 1);
    }
};

QTEST_GUILESS_MAIN(WorkersTest)
#include "tst_workers.moc"
