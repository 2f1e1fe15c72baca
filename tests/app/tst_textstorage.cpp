#include "libvorlin.h"
#include "textstorage.h"

#include <QtCore/QDir>
#include <QtCore/QSemaphore>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtTest/QtTest>

#include <atomic>

namespace {

QStringList logFiles(const QString& folder)
{
    return QDir(folder).entryList({QStringLiteral("gcs_client *.log")}, QDir::Files, QDir::Name);
}

QStringList readLines(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    if (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    return lines;
}

QStringList readAllLines(const QString& folder)
{
    QStringList lines;
    for (const QString& name : logFiles(folder))
        lines += readLines(QDir(folder).filePath(name));
    return lines;
}

// Counts the queued calls delivered to the object it filters.
class QueuedCallCounter : public QObject
{
public:
    std::atomic<int> calls{0};

protected:
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::MetaCall)
            ++calls;
        return false;
    }
};

} // namespace

// The storage lives in its own thread, as in an application.
class TextStorageTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_thread = new QThread;
        m_thread->start();
        m_storage = new TextStorage(m_dir.path() + QStringLiteral("/logs/nested"));
        m_storage->moveToThread(m_thread);
        connect(m_thread, &QThread::finished, m_storage, &QObject::deleteLater); // as the application does
    }

    void cleanup()
    {
        m_thread->quit();
        m_thread->wait();
        delete m_thread;
        libVorlin::SetImmediateQuit(false);
        QDir(m_dir.path()).removeRecursively();
        QDir().mkpath(m_dir.path());
    }

    void writesLinesInOrderIntoANamedFile()
    {
        const QString folder = m_dir.path() + QStringLiteral("/logs/nested");
        QVERIFY(QDir(folder).exists()); // made by the constructor, parents included
        QVERIFY(logFiles(folder).isEmpty()); // no file before the first line
        // UTF-8 after ASCII lines, a character outside the BMP included, and a long line.
        QStringList expected;
        for (int i = 0; i < 50; ++i)
            expected << QStringLiteral("line %1").arg(i);
        expected << QString::fromUtf8("heading 30\u00b0") << QString::fromUtf8("\u822a\u7ebf reached \u2708 \U0001F6E9")
                 << QString(600, QLatin1Char('x'));
        for (const QString& line : qAsConst(expected))
            m_storage->appendLine(line);
        QTRY_COMPARE(readAllLines(folder), expected);
        const QStringList files = logFiles(folder);
        QCOMPARE(files.size(), 1);
        QVERIFY(QRegularExpression(QStringLiteral("^gcs_client \\d{4}-\\d\\d-\\d\\d \\d\\d_\\d\\d_\\d\\d\\.log$"))
                    .match(files.first()).hasMatch());
    }

    void aBurstCostsOneRequestToTheLogThread()
    {
        auto* counter = new QueuedCallCounter;
        counter->moveToThread(m_thread); // a filter lives in the thread of what it watches
        connect(m_thread, &QThread::finished, counter, &QObject::deleteLater);
        m_storage->installEventFilter(counter);
        QSemaphore held;
        QMetaObject::invokeMethod(m_storage, [&held] { held.acquire(); }); // one queued call
        for (int i = 0; i < 500; ++i)
            m_storage->appendLine(QStringLiteral("burst line %1").arg(i));
        held.release();
        QTRY_COMPARE(readAllLines(m_storage->currentPath()).size(), 500);
        QCOMPARE(counter->calls.load(), 2); // the hold, and one request for the whole burst
    }

    void splitsWhenTheFileReachesTheSplitSize()
    {
        const QString folder = m_storage->currentPath();
        m_storage->changeSplitSize(1);
        m_storage->changeSplitSize(0);  // ignored
        m_storage->changeSplitSize(-5); // ignored
        const QString filler(1023, QLatin1Char('x'));
        // The log thread is held until the whole burst is pending, so that it is one batch: a
        // batch taken in the middle of it would find the file full and begin a new file within
        // the same second, which overwrites the first.
        QSemaphore held;
        QMetaObject::invokeMethod(m_storage, [&held] { held.acquire(); });
        for (int i = 0; i < 1100; ++i) // a little over 1 MB in one burst
            m_storage->appendLine(filler);
        held.release();
        QTRY_COMPARE(readAllLines(folder).size(), 1100);
        QCOMPARE(logFiles(folder).size(), 1);
        // A file is named by the second it was begun in; wait for the next second.
        QTest::qWait(1100);
        m_storage->appendLine(QStringLiteral("after the split"));
        QTRY_COMPARE(logFiles(folder).size(), 2);
        const QStringList files = logFiles(folder);
        QVERIFY(QFileInfo(QDir(folder).filePath(files.first())).size() >= 1024 * 1024);
        QCOMPARE(readLines(QDir(folder).filePath(files.last())), QStringList{QStringLiteral("after the split")});
    }

    void changesFolderOnlyWhenItDiffers()
    {
        const QString first = m_storage->currentPath();
        m_storage->appendLine(QStringLiteral("in the first folder"));
        QTRY_COMPARE(logFiles(first).size(), 1);

        QTest::qWait(1100);
        m_storage->changePath(first); // the folder in use: no new file
        m_storage->appendLine(QStringLiteral("still the first folder"));
        QTRY_COMPARE(readAllLines(first).size(), 2);
        QCOMPARE(logFiles(first).size(), 1);

        const QString second = m_dir.path() + QStringLiteral("/other/deeper");
        m_storage->changePath(second);
        QVERIFY(QDir(second).exists()); // created at once, by the caller
        QTRY_COMPARE(m_storage->currentPath(), second);
        QTRY_COMPARE(logFiles(second).size(), 1); // begun at once, before any line
        m_storage->appendLine(QStringLiteral("in the second folder"));
        QTRY_COMPARE(readAllLines(second), QStringList{QStringLiteral("in the second folder")});
    }

    // The synchronous write, as for a fatal message, is on disk on return and ignores the flag.
    void dropsQueuedLinesOnceTheLibraryQuits()
    {
        const QString folder = m_storage->currentPath();
        libVorlin::SetImmediateQuit(true);
        m_storage->appendLine(QStringLiteral("dropped"));
        m_storage->writeLineNow(QStringLiteral("kept"));
        QCOMPARE(readAllLines(folder), QStringList{QStringLiteral("kept")});
        QTest::qWait(200);
        QCOMPARE(readAllLines(folder), QStringList{QStringLiteral("kept")});
    }

private:
    QTemporaryDir m_dir;
    QThread* m_thread = nullptr;
    TextStorage* m_storage = nullptr;
};

QTEST_GUILESS_MAIN(TextStorageTest)
#include "tst_textstorage.moc"
