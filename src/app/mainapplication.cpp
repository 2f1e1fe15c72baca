#include "mainapplication.h"
#include "mainapplication_p.h"

#include "crashhandler.h"
#include "fonts.h"
#include "imainwindow.h"
#include "itoolobject.h"
#include "iworkermgtobject.h"
#include "libvorlin.h"
#include "logline_p.h"
#include "textstorage.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QEventLoop>
#include <QtCore/QSettings>
#include <QtCore/QThread>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtMultimedia/QSound>
#include <QtQml/QQmlEngine>
#include <QtTextToSpeech/QTextToSpeech>
#include <QtWidgets/QDialog>

#include <atomic>
#include <cstdlib>

namespace {

std::atomic<bool> s_immediateQuit{false};
QString s_presetApplicationName;
QString s_presetOrganizationName;
QtMessageHandler s_previousHandler = nullptr;
QThread* s_logThread = nullptr;
// Read by the message handler in any thread; cleared before the storage goes away.
std::atomic<TextStorage*> s_logStorage{nullptr};

void messageHandler(QtMsgType type, const QMessageLogContext& context, const QString& text)
{
    if (s_immediateQuit.load())
        return;
    const QString line = vorlin::formatLogLine(type, context, text);
    TextStorage* storage = s_logStorage.load();
    if (type == QtFatalMsg) {
        if (storage)
            storage->writeLineNow(line);
        std::abort();
    }
    if (s_previousHandler)
        s_previousHandler(type, context, text);
    if (storage)
        storage->appendLine(line);
}

QString resolvedApplicationName()
{
    return s_presetApplicationName.isEmpty() ? QCoreApplication::applicationName() : s_presetApplicationName;
}

QString resolvedOrganizationName()
{
    return s_presetOrganizationName.isEmpty() ? QCoreApplication::applicationName() + QStringLiteral(".com")
                                              : s_presetOrganizationName;
}

// "<logdir>/dmp/<name> V<version>_yyyy-MM-dd_hh_mm_ss.dmp"
QString crashDumpFilePath()
{
    const QString applicationName = resolvedApplicationName();
    const QSettings settings(QSettings::IniFormat, QSettings::UserScope, resolvedOrganizationName(), applicationName);
    const QString folder = settings.value(QStringLiteral("logdir"), QCoreApplication::applicationDirPath()).toString()
        + QStringLiteral("/dmp/");
    const QString version = QStringLiteral(" V") + QCoreApplication::applicationVersion() + QStringLiteral("_");
    return folder + applicationName + version
        + QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd_hh_mm_ss")) + QStringLiteral(".dmp");
}

// The library's own Chinese translation ships inside its resources, so it is found
// wherever the library is installed.
const char kLibraryChineseTranslation[] = ":/Translator/libvorlin_zh.qm";

} // namespace

MainApplication::MainApplication(int& argc, char** argv)
    : QApplication(argc, argv)
    , d(new MainApplicationImpl)
{
    qRegisterMetaType<IToolObject*>("IToolObject*");
    qRegisterMetaType<IWorkerMgtObject*>("IWorkerMgtObject*");
    vorlin::platform::registerFontSubstitutions();
}

MainApplication::~MainApplication()
{
    SetImmediateQuit(true);
    for (const QList<QTranslator*>& list : qAsConst(d->translators))
        qDeleteAll(list);
    d->translators.clear();
    libVorlin::FreeVorlin();
    d.reset();
}

void MainApplication::SetOrganizationDomain(const QString& applicationName, const QString& organizationName)
{
    s_presetApplicationName = applicationName;
    s_presetOrganizationName = organizationName;
}

void MainApplication::InitMainApplicationGlobal()
{
    vorlin::platform::installCrashHandler(crashDumpFilePath);

    const QString applicationName = resolvedApplicationName();
    const QString organizationName = resolvedOrganizationName();
    QCoreApplication::setApplicationName(applicationName);
    QCoreApplication::setOrganizationName(organizationName);
    QSettings::setDefaultFormat(QSettings::IniFormat);

    s_logThread = new QThread;
    s_logThread->start(QThread::InheritPriority);
    if (!s_logStorage.load()) {
        auto* storage = new TextStorage(QCoreApplication::applicationDirPath() + QStringLiteral("/log-client"));
        QObject::connect(s_logThread, &QThread::finished, storage, &QObject::deleteLater);
        storage->moveToThread(s_logThread);
        s_logStorage = storage;
    }

    s_previousHandler = qInstallMessageHandler(messageHandler);

    qDebug() << "EXE Version:" << QCoreApplication::applicationVersion() << "Main() Thread ID:"
             << QThread::currentThreadId();
    const QSettings settings;
    qDebug() << settings.defaultFormat() << settings.applicationName() << settings.organizationName()
             << settings.fileName();
}

void MainApplication::FreeMainApplicationGlobal()
{
    if (!s_logThread)
        return;
    // The thread's end deletes the storage in the thread (finished -> deleteLater); wait()
    // returns only after that, whereas isRunning() turns false as the thread starts to end.
    QPointer<TextStorage> storage = s_logStorage.exchange(nullptr);
    s_logThread->requestInterruption();
    s_logThread->quit();
    s_logThread->wait();
    delete storage.data();
    delete s_logThread;
    s_logThread = nullptr;
}

void MainApplication::SetImmediateQuit(bool quit)
{
    s_immediateQuit.exchange(quit);
}

bool MainApplication::IsImmediateQuit()
{
    return s_immediateQuit.load();
}

void MainApplication::LoggerRecordFunc(int type, const char* file, int line, const char* text)
{
    if (s_immediateQuit.load())
        return;
    const QMessageLogContext context(file, line, nullptr, nullptr);
    const QString logLine = vorlin::formatLogLine(QtMsgType(type), context, QString::fromUtf8(text));
    if (TextStorage* storage = s_logStorage.load())
        storage->appendLine(logLine);
}

void MainApplication::DelayEventLoop(int ms)
{
    if (ms < 20)
        return;
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec(QEventLoop::ExcludeUserInputEvents);
}

void MainApplication::ChangeLanguageSource(MainApplication::language_role lan)
{
    if (lan == d->currentLanguage)
        return;
    for (QTranslator* translator : d->translators.value(d->currentLanguage))
        removeTranslator(translator);
    for (QTranslator* translator : d->translators.value(lan))
        installTranslator(translator);
    if (lan == enLanguageZH) {
        // Registered while the old language is still current, so the library's own
        // translation is listed now but installed only by the next switch to Chinese,
        // and every switch lists it once more. This order is deliberate.
        QStringList libraryFile{QLatin1String(kLibraryChineseTranslation)};
        addLanguageSourceFilePath(libraryFile);
    }
    d->currentLanguage = lan;
}

void MainApplication::addLanguageSourceFilePath(QStringList& pathList)
{
    for (const QString& path : qAsConst(pathList)) {
        language_role language;
        if (path.endsWith(QLatin1String("_zh.qm"))) {
            language = enLanguageZH;
        } else if (path.endsWith(QLatin1String("_en.qm"))) {
            language = enLanguageEN;
        } else {
            qDebug() << "MainApplication::addLanguageSourceFilePath --- error : unknow language type.";
            continue;
        }
        auto* translator = new QTranslator(this);
        if (!translator->load(path)) {
            translator->deleteLater();
            continue;
        }
        d->translators[language].append(translator);
        if (language == d->currentLanguage)
            installTranslator(translator);
    }
}

void MainApplication::ChangeLoggerSplitSize(int sizeMB)
{
    if (TextStorage* storage = s_logStorage.load())
        storage->changeSplitSize(sizeMB);
}

void MainApplication::ChangeLoggerPath(QString slogPath)
{
    if (TextStorage* storage = s_logStorage.load())
        storage->changePath(slogPath);
}

QString MainApplication::CurrentLoggerPath()
{
    TextStorage* storage = s_logStorage.load();
    return storage ? storage->currentPath() : QString();
}

void MainApplication::setMainWindow(IMainWindow* mainWindow)
{
    d->mainWindow = mainWindow;
}

IMainWindow* MainApplication::MainWindow()
{
    return qobject_cast<IMainWindow*>(d->mainWindow.data());
}

bool MainApplication::insertPageWindow(QString page_name, QWidget* pageWidget)
{
    if (page_name.isEmpty() || d->pages.contains(page_name))
        return false;
    d->pages.insert(page_name, pageWidget);
    return true;
}

QWidget* MainApplication::PageWindow(QString page_name)
{
    return d->pages.value(page_name, nullptr);
}

void MainApplication::startSpeak(QString sContent)
{
    if (d->speech)
        QMetaObject::invokeMethod(d->speech, "say", Q_ARG(QString, sContent));
}

void MainApplication::stopSpeak()
{
    if (d->speech)
        QMetaObject::invokeMethod(d->speech, "stop");
}

void MainApplication::startPlaySound(int times)
{
    if (!d->sound)
        return;
    d->sound->setLoops(times > 0 ? times : 1);
    QMetaObject::invokeMethod(d->sound, "play");
}

void MainApplication::startPlaySound()
{
    startPlaySound(1);
}

void MainApplication::stopPlaySound()
{
    if (d->sound)
        QMetaObject::invokeMethod(d->sound, "stop");
}

void MainApplication::msDelayUI(int msTimeout)
{
    // A time of day, not a duration: a wait that crosses midnight ends at once.
    const QTime deadline = QTime::currentTime().addMSecs(msTimeout);
    while (!s_immediateQuit.load() && QTime::currentTime() < deadline)
        processEvents(QEventLoop::AllEvents, 50);
}

QDialog* MainApplication::loginDialog()
{
    return d->loginDialog;
}

void MainApplication::setLoginDialog(QDialog* loginDialog)
{
    if (!loginDialog)
        return;
    delete d->loginDialog;
    d->loginDialog = loginDialog;
}

bool MainApplication::isNeedLogin()
{
    return d->loginDialog != nullptr;
}

void MainApplication::slotLoginResult(const bool& ok)
{
    if (!ok || !d->loginDialog)
        return;
    qDebug() << "MainApplication::slotLoginResult -- login success. show main window.";
    d->loginDialog->hide();
    showAppWindow();
}

void MainApplication::initApplication()
{
    if (!d->speech) {
        d->speech = new QTextToSpeech(this);
        d->speech->setLocale(QLocale(QLocale::Chinese, QLocale::AnyCountry));
        d->speech->setRate(-0.2);
        d->speech->setPitch(1.0);
        d->speech->setVolume(1.0);
    }
    if (!d->sound)
        d->sound = new QSound(QStringLiteral(":/sound_file/notice.wav"), this);
    libVorlin::InitVorlin();
}

void MainApplication::destroyApplication()
{
    releaseMainWindow();
}

void MainApplication::configApplication()
{
}

void MainApplication::loadExternModules()
{
}

void MainApplication::showAppWindow()
{
    if (IMainWindow* window = MainWindow())
        window->ShowRaiseWindow();
}

void MainApplication::showLoginDialog()
{
    IMainWindow* window = MainWindow();
    if (!d->loginDialog || !window)
        return;
    window->hide();
    d->loginDialog->show();
}

void MainApplication::saveOptionOnQuit()
{
}

void MainApplication::RegisterClass2Qml()
{
    QQmlEngine::setObjectOwnership(this, QQmlEngine::CppOwnership);
}

void MainApplication::destroyUI()
{
    releaseMainWindow();
}

void MainApplication::releaseMainWindow()
{
    SetImmediateQuit(true);
    delete d->mainWindow.data();
    d->mainWindow = nullptr;
}

void MainApplication::destroyWoker()
{
}
