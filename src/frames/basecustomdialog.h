#pragma once

#include "vorlinglobal.h"

#include <QtCore/QSharedPointer>
#include <QtGui/QColor>
#include <QtWidgets/QDialog>

class BaseCustomDialogImpl;

// A ready-made frameless dialog: a translucent window with a rounded body and a soft grey
// shadow, a title row (logo, title, drop-down menu and close buttons) and a container frame
// for the application's content. It is dragged from anywhere inside it, can be resized from
// a border band once SetBorder gives it one, takes title and content skin images, and
// ignores Escape, Return and Enter.
class VORLIN_EXPORT BaseCustomDialog : public QDialog
{
    Q_OBJECT
public:
    explicit BaseCustomDialog(QWidget* parent = nullptr);
    ~BaseCustomDialog() override;

    // Where the application lays out its content.
    QWidget* Container();
    // Sets the title text (also the window title) and the logo image; an empty path clears
    // the logo and collapses it to width 0.
    void SetDialogTitle(const QString& title, const QString& logoPath);
    void HiddenSysButton(bool hideMenu, bool hideClose);
    // The inset of the drag area; a width of n > 1 gives resize bands n - 1 pixels wide.
    void SetBorder(int width);
    void StaysOnTopHint(bool onTop);
    int TitleWidgetHeight() const;
    void setMenuButtonRelease(bool enable);
    void setBackgroundColor(QColor color);
    void setTitleBkColor(QColor color);
    void setTitleTextStyle(QString styleSheet);
    void setCloseBtnStyle(QString styleSheet, QString iconPath, QString toolTip);

    // The resize band under pos (window coordinates) as a Windows hit-test code, 0 for none.
    int hitTest(const QPoint& pos) const;

    // Reloads the derived dialog's settings into its form; empty here.
    virtual void ReloadSettingUI();

Q_SIGNALS:
    void sigShowMenu();

public Q_SLOTS:
    // Empty paths return the areas to outline painting.
    void slotUpdateBackgroundSkin(QString sTitleSkinPath, QString sContextSkinPath);

protected:
    void paintEvent(QPaintEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    QSharedPointer<BaseCustomDialogImpl> d;
};
