#pragma once

#include "vorlinglobal.h"

#include "mainapplication.h"

#include <QtCore/QSharedPointer>
#include <QtGui/QColor>
#include <QtWidgets/QMainWindow>

#include <cstdint>

class IMainWindowImpl;
class QBoxLayout;

// Base of the application's main window: a frameless window with a thin drawn frame. It is
// moved by dragging its title area (or anywhere with the middle button), resized from an
// 8-pixel band along its edges, maximised by a double click on the title area or by
// dragging it to the top of the screen, and can show a status bar with a device-link
// indicator. It registers itself with the application object on construction, which is how
// the title bar and other widgets find it.
class VORLIN_EXPORT IMainWindow : public QMainWindow
{
    Q_OBJECT
public:
    explicit IMainWindow(QWidget* parent = nullptr);
    ~IMainWindow() override;

    // Resizes to w x h unless both are 0, centres the window on the whole virtual desktop
    // (20 pixels higher, for a task bar) and shows it.
    Q_INVOKABLE void ShowResizeWindow(int w, int h);
    Q_INVOKABLE void ShowNormalMaxRestore();
    Q_INVOKABLE void ShowFullWindow();
    Q_INVOKABLE void ShowNormalWindow();
    // Shows the window maximised, activates and raises it (the name notwithstanding).
    Q_INVOKABLE void ShowRaiseWindow();
    // Fades the window in from 30 % opacity over msDuration milliseconds.
    Q_INVOKABLE void StartAnimation(int msDuration);
    // Creates the one-pixel frame lines on first use and colours them.
    Q_INVOKABLE void setBorderColor(QColor clr);
    // Records a user action; at most one write per 500 ms, and only while tracking is on.
    Q_INVOKABLE void UpdateUserLastOptTime();
    // Milliseconds since the epoch (UTC) of the last recorded action, 0 if none; any thread.
    Q_INVOKABLE uint64_t getUserLastOptTime();
    Q_INVOKABLE void SetUserOptTimeEnable(bool isEnable);

    // The resize band under pos (window coordinates) as a Windows hit-test code, 0 for
    // none and always 0 while maximised.
    int hitTest(const QPoint& pos) const;

Q_SIGNALS:
    void sigShowMaxRestore();

public Q_SLOTS:
    // The area that starts a drag and takes double clicks (usually the title bar).
    virtual void SetTitleWidget(QWidget* titleWidget);
    // Does nothing here; derived windows forward it to their title bar.
    virtual void SetTitleLogo(QString& title, QString& logoPath);
    virtual void ChangeLanguageSource(MainApplication::language_role lan);

protected Q_SLOTS:
    void slotUpdateDevLinkStatusUI();

protected:
    void initWindowStyle();
    // Builds (true) or hides (false) the status bar, if the window has one.
    void initStatusBarWidgetUI(bool show);
    // Enables or disables the first widget of the layout with the given object name.
    void setSysBtnRelease(QBoxLayout* layout, QString objectName, bool enable);
    void showStayOnTopOrNot();

    // The link state the status bar's indicator shows.
    void setDeviceLinked(bool linked);
    bool isDeviceLinked() const;
    // The maker's credit shown at the right of the status bar; empty here.
    virtual QString statusBarCredit() const;

    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    QSharedPointer<IMainWindowImpl> d;
};
