#include "oneapplication.h"
#include "singleapplication.h"

#include <QtCore/QDir>
#include <QtCore/QProcess>
#include <QtCore/QSocketNotifier>
#include <QtCore/QTextStream>
#include <QtGui/QWindow>
#include <QtTest/QtTest>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

#include <cstdio>

namespace {

// Second instances: this executable started again with "--helper <kind> <name>". It prints
// "first" or "running" and, when first, holds its guard until its standard input closes.
int runHelper(int argc, char** argv)
{
    const QByteArray kind = argv[2];
    const QString name = QString::fromLocal8Bit(argv[3]);
    QScopedPointer<QCoreApplication> app(kind == "lookup" ? new QGuiApplication(argc, argv) : new QCoreApplication(argc, argv));
    QCoreApplication::setApplicationName(name);
    auto answer = [](bool first) {
        std::printf(first ? "first\n" : "running\n");
        std::fflush(stdout);
    };
    auto holdUntilStdinCloses = [&app] {
        QSocketNotifier input(0, QSocketNotifier::Read);
        QObject::connect(&input, &QSocketNotifier::activated, app.data(), [] {
            char byte;
            if (std::fread(&byte, 1, 1, stdin) != 1)
                QCoreApplication::quit();
        });
        return app->exec();
    };
    if (kind == "single") {
        SingleApplication guard;
        answer(!guard.IsRunning());
        return guard.IsRunning() ? 0 : holdUntilStdinCloses();
    }
    if (kind == "one") {
        OneApplication guard(name);
        const bool first = guard.isFirstApp();
        answer(first);
        return first ? holdUntilStdinCloses() : 0;
    }
    if (kind == "lookup") {
        std::printf(OneApplication::IsWindowsVisible(name) ? "visible\n" : "not found\n");
        return 0;
    }
    return 2;
}

} // namespace

class Instance
{
public:
    explicit Instance(const QString& kind, const QString& name,
                      const QProcessEnvironment& environment = QProcessEnvironment::systemEnvironment())
    {
        m_process.setProcessEnvironment(environment);
        m_process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--helper"), kind, name});
    }
    ~Instance()
    {
        m_process.closeWriteChannel();
        if (!m_process.waitForFinished(5000))
            m_process.kill();
        m_process.waitForFinished();
    }
    QString answer()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(10000)) {
        }
        return QString::fromLocal8Bit(m_process.readLine()).trimmed();
    }
    // Leaves no chance to clean up, as a crash would.
    void kill()
    {
        m_process.kill();
        m_process.waitForFinished();
    }
    void quit()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished(10000);
    }

private:
    QProcess m_process;
};

struct ExposeCounter : QObject
{
    bool eventFilter(QObject*, QEvent* event) override
    {
        count += event->type() == QEvent::Expose;
        return false;
    }
    int count = 0;
};

class TestSingleInstance : public QObject
{
    Q_OBJECT
private:
    QString uniqueName(const char* what) const
    {
        return QStringLiteral("vorlin-%1-%2").arg(QLatin1String(what)).arg(QCoreApplication::applicationPid());
    }

private Q_SLOTS:
    void singleApplicationFindsTheRunningInstance()
    {
        const QString name = uniqueName("single");
        QCoreApplication::setApplicationName(name);
        {
            SingleApplication first;
            QVERIFY(!first.IsRunning());
            SingleApplication second;
            QVERIFY(second.IsRunning());
            Instance other(QStringLiteral("single"), name);
            QCOMPARE(other.answer(), QStringLiteral("running"));
            first.MsDelayUI(200); // serves the knocks without falling over
        }
        // Gone with the first guard.
        Instance next(QStringLiteral("single"), name);
        QCOMPARE(next.answer(), QStringLiteral("first"));
    }

    void singleApplicationReclaimsAStaleServerName()
    {
        const QString name = uniqueName("stale");
        QCoreApplication::setApplicationName(name);
        Instance crashed(QStringLiteral("single"), name);
        QCOMPARE(crashed.answer(), QStringLiteral("first"));
        crashed.kill();
        QVERIFY(QFile::exists(QDir::tempPath() + QLatin1Char('/') + name)); // the socket stays behind

        SingleApplication guard;
        QVERIFY(!guard.IsRunning());
        Instance later(QStringLiteral("single"), name);
        QCOMPARE(later.answer(), QStringLiteral("running"));
    }

    void oneApplicationHoldsTheNameForItsLifetime()
    {
        const QString name = uniqueName("one/mutex"); // a slash is allowed in the name
        {
            OneApplication first(name);
            QVERIFY(first.isFirstApp());
            QVERIFY(!first.isFirstApp()); // finds its own mutex
            OneApplication sameProcess(name);
            QVERIFY(!sameProcess.isFirstApp());
            Instance other(QStringLiteral("one"), name);
            QCOMPARE(other.answer(), QStringLiteral("running"));
        }
        Instance holder(QStringLiteral("one"), name);
        QCOMPARE(holder.answer(), QStringLiteral("first"));
        OneApplication meanwhile(name);
        QVERIFY(!meanwhile.isFirstApp());
        holder.kill(); // the system releases what a dead process held
        OneApplication afterCrash(name);
        QVERIFY(afterCrash.isFirstApp());
    }

    void windowFoundAndRaisedByTitle()
    {
        if (QGuiApplication::platformName() != QLatin1String("xcb"))
            QSKIP("needs an X11 display");
        const QString title = QStringLiteral("地面站 %1").arg(uniqueName("window"));
        QWidget window;
        window.setWindowTitle(title);
        window.resize(200, 100);
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        QTRY_VERIFY(OneApplication::IsWindowsVisible(title));
        QVERIFY(!OneApplication::IsWindowsVisible(title + QLatin1Char(' ')));
        QVERIFY(!OneApplication::IsWindowsVisible(QStringLiteral("地面站")));

        OneApplication::ShowWindow(QStringLiteral("no window has this title"));
        window.hide();
        QTRY_VERIFY(!OneApplication::IsWindowsVisible(title));

        // The server maps the window for us: Qt learns of it through an expose event.
        ExposeCounter exposes;
        window.windowHandle()->installEventFilter(&exposes);
        OneApplication::ShowWindow(title);
        QTRY_VERIFY(OneApplication::IsWindowsVisible(title));
        QTRY_VERIFY(exposes.count > 0);

        // Another process on another platform plug-in sees no X11 windows at all.
        QProcessEnvironment offscreen = QProcessEnvironment::systemEnvironment();
        offscreen.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
        Instance onX11(QStringLiteral("lookup"), title);
        QCOMPARE(onX11.answer(), QStringLiteral("visible"));
        Instance elsewhere(QStringLiteral("lookup"), title, offscreen);
        QCOMPARE(elsewhere.answer(), QStringLiteral("not found"));
    }
};

int main(int argc, char** argv)
{
    if (argc >= 4 && qstrcmp(argv[1], "--helper") == 0)
        return runHelper(argc, argv);
    QApplication app(argc, argv);
    TestSingleInstance test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleinstance.moc"
