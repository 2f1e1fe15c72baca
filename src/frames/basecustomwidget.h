#pragma once

#include "vorlinglobal.h"

#include <QtCore/QSharedPointer>
#include <QtWidgets/QWidget>

class BaseCustomWidgetImpl;

// The tool-window counterpart of BaseCustomDialog: the same frameless shell as a plain
// widget, skinned by default with the application's "/Skins/BaseDialogTitleSkin.png" and
// "/Skins/BaseDialogContextSkin.jpg" and keeping the keyboard's usual behaviour.
class VORLIN_EXPORT BaseCustomWidget : public QWidget
{
    Q_OBJECT
public:
    explicit BaseCustomWidget(QWidget* parent = nullptr);
    ~BaseCustomWidget() override;

    QWidget* Container();
    void SetDialogTitle(const QString& title, const QString& logoPath);
    void HiddenSysButton(bool hideMenu, bool hideClose);
    void SetBorder(int width);
    void StaysOnTopHint(bool onTop);
    int TitleWidgetHeight() const;
    void setMenuButtonRelease(bool enable);

    // The resize band under pos (window coordinates) as a Windows hit-test code, 0 for none.
    int hitTest(const QPoint& pos) const;

    virtual void ReloadSettingUI();

Q_SIGNALS:
    void sigShowMenu();

public Q_SLOTS:
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
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    QSharedPointer<BaseCustomWidgetImpl> d;
};
