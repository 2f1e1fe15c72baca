#pragma once

#include "vorlinglobal.h"

#include <QtCore/QSharedPointer>
#include <QtCore/QStringList>
#include <QtWidgets/QApplication>

class IMainWindow;
class MainApplicationImpl;
class QDialog;

// The application object of every program built on the library: translations, the log
// thread and its message handler, the crash handler, sound and speech prompts, the page
// registry and the login flow.
class VORLIN_EXPORT MainApplication : public QApplication
{
    Q_OBJECT
public:
    enum language_role {
        enLanguageZH = 0,
        enLanguageEN = 1,
        enLanguageDE = 2, // declared; no translation file can be registered for it
        enLanguageLast = 255
    };
    Q_ENUM(language_role)

    MainApplication(int& argc, char** argv);
    ~MainApplication() override;

    // Names used by InitMainApplicationGlobal; call before it.
    static void SetOrganizationDomain(const QString& applicationName, const QString& organizationName);
    static void InitMainApplicationGlobal();
    static void FreeMainApplicationGlobal();
    static void SetImmediateQuit(bool quit);
    static bool IsImmediateQuit();
    // Logs one line exactly as the message handler does, for callers without Qt's macros.
    static void LoggerRecordFunc(int type, const char* file, int line, const char* text);
    static void DelayEventLoop(int ms);

    Q_INVOKABLE void ChangeLanguageSource(MainApplication::language_role lan);
    Q_INVOKABLE void addLanguageSourceFilePath(QStringList& pathList);
    Q_INVOKABLE void ChangeLoggerSplitSize(int sizeMB);
    Q_INVOKABLE void ChangeLoggerPath(QString slogPath);
    Q_INVOKABLE QString CurrentLoggerPath();
    Q_INVOKABLE void setMainWindow(IMainWindow* mainWindow);
    Q_INVOKABLE IMainWindow* MainWindow();
    Q_INVOKABLE bool insertPageWindow(QString page_name, QWidget* pageWidget);
    Q_INVOKABLE QWidget* PageWindow(QString page_name);
    Q_INVOKABLE void startSpeak(QString sContent);
    Q_INVOKABLE void stopSpeak();
    Q_INVOKABLE void startPlaySound(int times);
    Q_INVOKABLE void startPlaySound();
    Q_INVOKABLE void stopPlaySound();
    Q_INVOKABLE void msDelayUI(int msTimeout);
    Q_INVOKABLE QDialog* loginDialog();
    Q_INVOKABLE void setLoginDialog(QDialog* loginDialog);
    Q_INVOKABLE bool isNeedLogin();

public Q_SLOTS:
    void slotLoginResult(const bool& ok);

    virtual void initApplication();
    virtual void destroyApplication();
    virtual void configApplication();
    virtual void loadExternModules();
    virtual void showAppWindow();
    virtual void showLoginDialog();
    virtual void saveOptionOnQuit();

protected Q_SLOTS:
    virtual void RegisterClass2Qml();

protected:
    void destroyUI();
    void destroyWoker();

private:
    void releaseMainWindow();

    QSharedPointer<MainApplicationImpl> d;
};
