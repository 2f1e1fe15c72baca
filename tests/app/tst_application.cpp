#include "imainwindow.h"
#include "libvorlin.h"
#include "mainapplication.h"

#include <QtCore/QDateTime>
#include <QtCore/QDir>
#include <QtCore/QMutex>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtCore/QThread>
#include <QtCore/QTranslator>
#include <QtMultimedia/QSound>
#include <QtQml/QQmlEngine>
#include <QtTest/QtTest>
#include <QtWidgets/QDialog>

#include <cstdint>

namespace {

// Stands before the library's handler, which chains to it.
QMutex s_capturedLock;
QStringList s_captured;

void captureHandler(QtMsgType, const QMessageLogContext&, const QString& text)
{
    QMutexLocker locker(&s_capturedLock);
    s_captured << text;
}

bool captured(const QString& text)
{
    QMutexLocker locker(&s_capturedLock);
    return s_captured.contains(text);
}

bool capturedStartingWith(const QString& start)
{
    QMutexLocker locker(&s_capturedLock);
    return std::any_of(s_captured.cbegin(), s_captured.cend(), [&](const QString& text) { return text.startsWith(start); });
}

QStringList logLines(const QString& folder)
{
    QStringList lines;
    const QDir dir(folder);
    for (const QString& name : dir.entryList({QStringLiteral("gcs_client *.log")}, QDir::Files, QDir::Name)) {
        QFile file(dir.filePath(name));
        if (file.open(QIODevice::ReadOnly))
            lines += QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    return lines;
}

bool logHasLineEndingWith(const QString& folder, const QString& ending)
{
    for (const QString& line : logLines(folder)) {
        if (line.endsWith(ending))
            return true;
    }
    return false;
}

QString probe()
{
    return QCoreApplication::translate("Probe", "hello");
}

QString linkStatus()
{
    return QCoreApplication::translate("IMainWindow", " LinkStatus: ");
}

MainApplication* app()
{
    return static_cast<MainApplication*>(QCoreApplication::instance());
}

// Child process: a program that dies of a fatal message or a crash.
int runChild(int argc, char** argv)
{
    const QByteArray mode = argv[2];
    const QString folder = QString::fromLocal8Bit(argv[3]);
    MainApplication::SetOrganizationDomain(QStringLiteral("CrashProbe"), QStringLiteral("vorlin.test"));
    MainApplication application(argc, argv);
    application.setApplicationVersion(QStringLiteral("1.2.3"));
    // The dump folder comes from the settings key "logdir" (XDG_CONFIG_HOME points into the test folder).
    QSettings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vorlin.test"), QStringLiteral("CrashProbe"))
        .setValue(QStringLiteral("logdir"), folder);
    MainApplication::InitMainApplicationGlobal();
    application.ChangeLoggerPath(folder + QStringLiteral("/logs"));
    while (application.CurrentLoggerPath() != folder + QStringLiteral("/logs"))
        QThread::msleep(5);
    if (mode == "fatal")
        qFatal("fatal probe %d", 42);
    if (mode == "crash") {
        volatile std::uintptr_t unmapped = 16; // opaque to the compiler: a real fault at run time
        *reinterpret_cast<volatile int*>(unmapped) = 1;
    }
    return 0;
}

} // namespace

class ApplicationTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        qInstallMessageHandler(captureHandler);
        QVERIFY(QFile::exists(QStringLiteral(":/Style/libVorlin.qss"))); // registered when the library loads
        MainApplication::SetOrganizationDomain(QStringLiteral("ProbeApp"), QString());
        MainApplication::InitMainApplicationGlobal();
        QCOMPARE(QCoreApplication::applicationName(), QStringLiteral("ProbeApp"));
        QCOMPARE(QCoreApplication::organizationName(), QStringLiteral("test_application.com"));
        QCOMPARE(QSettings::defaultFormat(), QSettings::IniFormat);
        app()->ChangeLoggerPath(m_dir.path());
        QTRY_COMPARE(app()->CurrentLoggerPath(), m_dir.path());
    }

    void cleanupTestCase()
    {
        MainApplication::FreeMainApplicationGlobal();
        QCOMPARE(app()->CurrentLoggerPath(), QString());
        qDebug("after the log thread");
        QVERIFY(captured(QStringLiteral("after the log thread"))); // still chained, no longer stored
    }

    void formatsLogLines()
    {
        const QDateTime before = QDateTime::currentDateTime();
        const int line = __LINE__ + 1;
        qWarning("abc");
        const QDateTime after = QDateTime::currentDateTime();
        const QString ending = QStringLiteral(" [Warning] at app\\tst_application.cpp:%1 - abc").arg(line);
        QTRY_VERIFY(logHasLineEndingWith(m_dir.path(), ending));
        QVERIFY(captured(QStringLiteral("abc")));
        for (const QString& logLine : logLines(m_dir.path())) {
            if (!logLine.endsWith(ending))
                continue;
            const QDateTime stamp = QDateTime::fromString(logLine.left(23), QStringLiteral("yyyy-MM-dd hh:mm:ss.zzz"));
            QVERIFY2(before <= stamp && stamp <= after, qPrintable(logLine)); // local time, to the millisecond
        }
        const QRegularExpression format(QStringLiteral(
            "^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} \\[(Debug|Warning|Critical|Info)\\] at [^ ]*:\\d+ - "));
        for (const QString& logLine : logLines(m_dir.path()))
            QVERIFY2(format.match(logLine).hasMatch(), qPrintable(logLine));

        MainApplication::LoggerRecordFunc(QtCriticalMsg, "D:/a/b/c/file.src", 7, "deep");
        MainApplication::LoggerRecordFunc(QtInfoMsg, "file.src", 3, "flat");
        MainApplication::LoggerRecordFunc(9, "x\\y.src", 5, "unknown type");
        QTRY_VERIFY(logHasLineEndingWith(m_dir.path(), QStringLiteral(" [Critical] at c\\file.src:7 - deep")));
        QTRY_VERIFY(logHasLineEndingWith(m_dir.path(), QStringLiteral(" [Info] at file.src:3 - flat")));
        QTRY_VERIFY(logHasLineEndingWith(m_dir.path(), QStringLiteral(" [Debug] at x\\y.src:5 - unknown type")));
        // The start-up lines, through the new handler into the log and on to the previous handler.
        QVERIFY(capturedStartingWith(QStringLiteral("EXE Version: ")));
    }

    void manyProducersNeitherLoseNorTearLines()
    {
        constexpr int threads = 8;
        constexpr int perThread = 500;
        QList<QThread*> producers;
        for (int t = 0; t < threads; ++t) {
            producers << QThread::create([t] {
                for (int i = 0; i < perThread; ++i)
                    qDebug("producer %d line %d %s", t, i, "payload-payload-payload-payload");
            });
            producers.last()->start();
        }
        for (QThread* producer : qAsConst(producers)) {
            producer->wait();
            delete producer;
        }
        const QRegularExpression pattern(QStringLiteral("- producer (\\d+) line (\\d+) payload-payload-payload-payload$"));
        QVector<int> next(threads, 0);
        const auto producerLines = [this] {
            const QStringList lines = logLines(m_dir.path());
            return std::count_if(lines.cbegin(), lines.cend(), [](const QString& l) { return l.contains(QLatin1String("- producer ")); });
        };
        QTRY_COMPARE_WITH_TIMEOUT(producerLines(), threads * perThread, 10000);
        for (const QString& logLine : logLines(m_dir.path())) {
            if (!logLine.contains(QLatin1String("- producer ")))
                continue;
            const QRegularExpressionMatch match = pattern.match(logLine);
            QVERIFY2(match.hasMatch(), qPrintable(logLine));
            const int t = match.captured(1).toInt();
            QCOMPARE(match.captured(2).toInt(), next[t]++); // each thread's lines in order, none twice
        }
    }

    void immediateQuitSilencesLogsAndDelays()
    {
        MainApplication::SetImmediateQuit(true);
        QVERIFY(MainApplication::IsImmediateQuit());
        QVERIFY(!libVorlin::isImmediateQuit()); // the two flags are separate
        qDebug("silenced");
        MainApplication::LoggerRecordFunc(QtDebugMsg, "a.cpp", 1, "silenced too");
        bool processed = false;
        QTimer::singleShot(0, [&processed] { processed = true; });
        app()->msDelayUI(5000); // returns at once, without processing events
        QVERIFY(!processed);
        MainApplication::SetImmediateQuit(false);
        QTRY_VERIFY(processed);
        qDebug("audible again");
        QTRY_VERIFY(logHasLineEndingWith(m_dir.path(), QStringLiteral(" - audible again")));
        QVERIFY(!captured(QStringLiteral("silenced")));
        QVERIFY(!logHasLineEndingWith(m_dir.path(), QStringLiteral(" - silenced")));
        QVERIFY(!logHasLineEndingWith(m_dir.path(), QStringLiteral(" - silenced too")));
    }

    void delayEventLoopWaitsFromTwentyMilliseconds()
    {
        bool processed = false;
        QTimer::singleShot(0, [&processed] { processed = true; });
        MainApplication::DelayEventLoop(19);
        QVERIFY(!processed);
        MainApplication::DelayEventLoop(20);
        QVERIFY(processed);
    }

    void pageRegistry()
    {
        QWidget first, second;
        QVERIFY(!app()->insertPageWindow(QString(), &first));
        QVERIFY(app()->insertPageWindow(QStringLiteral("map"), &first));
        QVERIFY(!app()->insertPageWindow(QStringLiteral("map"), &second)); // the first registration wins
        QCOMPARE(app()->PageWindow(QStringLiteral("map")), &first);
        QCOMPARE(app()->PageWindow(QStringLiteral("Map")), nullptr);
        bool inserted = false;
        QVERIFY(QMetaObject::invokeMethod(app(), "insertPageWindow", Q_RETURN_ARG(bool, inserted),
                                          Q_ARG(QString, QStringLiteral("plan")), Q_ARG(QWidget*, &second)));
        QVERIFY(inserted);
        QCOMPARE(app()->PageWindow(QStringLiteral("plan")), &second);
    }

    void translatorsSwitchInTheDescribedOrder()
    {
        const QString zh = QStringLiteral(PROBE_QM_DIR "/probe_zh.qm");
        const QString en = QStringLiteral(PROBE_QM_DIR "/probe_en.qm");
        QStringList files{zh, en, QStringLiteral("notes.txt"), QStringLiteral("/missing/file_zh.qm")};
        app()->addLanguageSourceFilePath(files);
        QVERIFY(captured(QStringLiteral("MainApplication::addLanguageSourceFilePath --- error : unknow language type.")));
        QCOMPARE(probe(), QStringLiteral("hello")); // nothing installed before the first switch

        app()->ChangeLanguageSource(MainApplication::enLanguageZH);
        QCOMPARE(probe(), QStringLiteral("你好"));
        // The library's own Chinese file is listed by this switch but installed only by the next one.
        QCOMPARE(linkStatus(), QStringLiteral(" LinkStatus: "));

        app()->ChangeLanguageSource(MainApplication::enLanguageEN);
        QCOMPARE(probe(), QStringLiteral("hello (en)"));
        app()->ChangeLanguageSource(MainApplication::enLanguageEN); // no change
        QCOMPARE(probe(), QStringLiteral("hello (en)"));

        app()->ChangeLanguageSource(MainApplication::enLanguageZH);
        QCOMPARE(probe(), QStringLiteral("你好"));
        QCOMPARE(linkStatus(), QStringLiteral(" 连接状态: "));

        app()->ChangeLanguageSource(MainApplication::enLanguageDE); // removes all, installs none
        QCOMPARE(probe(), QStringLiteral("hello"));
        QCOMPARE(linkStatus(), QStringLiteral(" LinkStatus: "));

        QStringList english{en};
        app()->ChangeLanguageSource(MainApplication::enLanguageEN);
        app()->addLanguageSourceFilePath(english); // the current language: installed at once
        QCOMPARE(probe(), QStringLiteral("hello (en)"));
        app()->ChangeLanguageSource(MainApplication::enLanguageDE);
    }

    void soundAndSpeechFollowInitApplication()
    {
        app()->startPlaySound(3); // before initApplication: ignored
        app()->startSpeak(QStringLiteral("ignored"));
        QVERIFY(!app()->findChild<QSound*>());

        app()->initApplication();
        app()->initApplication(); // creates nothing twice
        const QList<QSound*> sounds = app()->findChildren<QSound*>();
        QCOMPARE(sounds.size(), 1);
        QSound* sound = sounds.first();
        QCOMPARE(sound->fileName(), QStringLiteral(":/sound_file/notice.wav"));
        QVERIFY(QFile(sound->fileName()).size() > 1000);
        for (const auto& [times, loops] : {std::pair{0, 1}, {-3, 1}, {4, 4}}) {
            app()->startPlaySound(times);
            QCOMPARE(sound->loops(), loops);
        }
        app()->startPlaySound();
        QCOMPARE(sound->loops(), 1);
        app()->stopPlaySound();
        app()->startSpeak(QStringLiteral("起飞")); // silent without a speech engine, never blocking
        app()->stopSpeak();
        QVERIFY(QMetaType::type("IToolObject*") != QMetaType::UnknownType);
        QVERIFY(QMetaType::type("IWorkerMgtObject*") != QMetaType::UnknownType);
        QVERIFY(QMetaObject::invokeMethod(app(), "RegisterClass2Qml"));
        QCOMPARE(QQmlEngine::objectOwnership(app()), QQmlEngine::CppOwnership);
    }

    void loginFlowAndMainWindow()
    {
        auto* window = new IMainWindow;
        QCOMPARE(app()->MainWindow(), window); // registered by its constructor
        app()->setLoginDialog(nullptr);
        QVERIFY(!app()->isNeedLogin());
        app()->showLoginDialog(); // needs a login dialog: nothing happens
        QVERIFY(!window->isVisible());

        QPointer<QDialog> first = new QDialog;
        app()->setLoginDialog(first);
        auto* second = new QDialog;
        app()->setLoginDialog(second);
        QVERIFY(first.isNull()); // replaced dialogs are deleted
        app()->setLoginDialog(nullptr);
        QCOMPARE(app()->loginDialog(), second);

        window->show();
        app()->showLoginDialog();
        QVERIFY(!window->isVisible());
        QVERIFY(second->isVisible());
        app()->slotLoginResult(false);
        QVERIFY(!window->isVisible());
        QVERIFY(second->isVisible());
        app()->slotLoginResult(true);
        QVERIFY(window->isVisible());
        QVERIFY(window->isMaximized());
        QVERIFY(!second->isVisible());
        QVERIFY(captured(QStringLiteral("MainApplication::slotLoginResult -- login success. show main window.")));

        QPointer<IMainWindow> guard = window;
        app()->destroyApplication();
        QVERIFY(guard.isNull());
        QCOMPARE(app()->MainWindow(), nullptr);
        QVERIFY(MainApplication::IsImmediateQuit());
        MainApplication::SetImmediateQuit(false);
    }

    void fatalMessageIsOnDiskBeforeTheAbort()
    {
        const ChildRun run = runChildProcess("fatal");
        QCOMPARE(run.exitStatus, QProcess::CrashExit);
        QVERIFY(logHasLineEndingWith(run.folder + QStringLiteral("/logs"),
                                     QStringLiteral(" - fatal probe 42")));
    }

    void crashLeavesADumpAndAReport()
    {
        const ChildRun run = runChildProcess("crash");
        QCOMPARE(run.exitStatus, QProcess::CrashExit);
        const QDir dumps(run.folder + QStringLiteral("/dmp"));
        const QStringList files = dumps.entryList(QDir::Files);
        QCOMPARE(files.size(), 1);
        QVERIFY2(QRegularExpression(QStringLiteral("^CrashProbe V1\\.2\\.3_\\d{4}-\\d\\d-\\d\\d_\\d\\d_\\d\\d_\\d\\d\\.dmp$"))
                     .match(files.first()).hasMatch(),
                 qPrintable(files.first()));
        QFile dump(dumps.filePath(files.first()));
        QVERIFY(dump.open(QIODevice::ReadOnly));
        const QString report = QString::fromUtf8(dump.readAll());
        QVERIFY2(report.startsWith(QStringLiteral("Signal: SIGSEGV (11)\nFault address: 0x10\n")), qPrintable(report.left(200)));
        QVERIFY(report.contains(QStringLiteral("\nBacktrace:\n")));
        QVERIFY(report.contains(QStringLiteral("\nMemory map:\n")));
        QVERIFY(report.contains(QStringLiteral("libvorlin.so")));
        // Without a display the crash-dialog helper writes the box's text to standard error.
        QVERIFY2(run.errors.contains(QStringLiteral("Application Crash: <FONT size=4><div><b>I'm sorry for the application "
                                                    "crashed</b><br/></div><div>error code:b</div><div>error address:10</div></FONT>")),
                 qPrintable(run.errors));
    }

private:
    struct ChildRun
    {
        QString folder;
        QProcess::ExitStatus exitStatus;
        QString errors;
    };

    ChildRun runChildProcess(const char* mode)
    {
        auto* folder = new QTemporaryDir;
        folder->setAutoRemove(true);
        m_children.append(folder);
        QProcess child;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), folder->path() + QStringLiteral("/config"));
        environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        child.setProcessEnvironment(environment);
        child.start(QCoreApplication::applicationFilePath(),
                    {QStringLiteral("--child"), QLatin1String(mode), folder->path()});
        child.waitForFinished(60000);
        return {folder->path(), child.exitStatus(), QString::fromLocal8Bit(child.readAllStandardError())};
    }

    QTemporaryDir m_dir;
    QList<QTemporaryDir*> m_children;

public:
    ~ApplicationTest() override { qDeleteAll(m_children); }
};

int main(int argc, char** argv)
{
    if (argc >= 4 && qstrcmp(argv[1], "--child") == 0)
        return runChild(argc, argv);
    MainApplication application(argc, argv);
    ApplicationTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
