#pragma once

#include "vorlinglobal.h"

#include <QtCore/QMap>
#include <QtCore/QSharedPointer>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class ITitleBarWidgetImpl;
class QHBoxLayout;

// The title bar of a frameless main window: logo and title on the left, a free status area,
// then the clock and the system buttons (data configuration, minimise, maximise/restore,
// close). It finds the main window through the application object, forwards its buttons to
// it and watches the window's state to keep the maximise button's icon right. Derived title
// bars fill the left and status areas and may build their own system buttons; they call the
// init... hooks from their constructors in the order they need.
class VORLIN_EXPORT ITitleBarWidget : public QWidget
{
    Q_OBJECT
public:
    enum SysBtnRoleType {
        SysBtnMenu = 0x01,
        SysBtnConfig = 0x02,
        SysBtnMin = 0x04,
        SysBtnMax = 0x08,
        SysBtnClose = 0x10
    };
    Q_DECLARE_FLAGS(SysBtnRoles, SysBtnRoleType)
    Q_FLAG(SysBtnRoles)

    explicit ITitleBarWidget(QWidget* parent = nullptr);
    ~ITitleBarWidget() override;

    Q_INVOKABLE void setLogoColor(QString strColor);
    Q_INVOKABLE void setTitleColor(QString strColor);
    Q_INVOKABLE QString titleText();
    Q_INVOKABLE void setTitleText(QString sTitleText);
    // Only the Qt::AlignHCenter bit counts; it takes effect at the next resize.
    Q_INVOKABLE void setTitleAlignment(Qt::Alignment alignment);
    // Sets the title, and the logo image unless the path is empty.
    Q_INVOKABLE void setTitleLogo(QString sTitleText, QString sLogoIconPath);
    Q_INVOKABLE void setLogoSize(int w, int h);
    Q_INVOKABLE void setTitleTextPalette(int textFont, QString textColor,
                                         QString fontFamily = QStringLiteral("Microsoft YaHei"), int fontWeight = 200);
    // Makes exactly these role buttons visible.
    Q_INVOKABLE void showSysBtnRoles(ITitleBarWidget::SysBtnRoles sysBtnRoles);
    Q_INVOKABLE void hiddenSysBtnRoles(ITitleBarWidget::SysBtnRoles sysBtnRoles);
    // A colour fill (enabled) instead of the background skin.
    Q_INVOKABLE void setBackgroundColor(bool bkgEnabled, QColor color = Qt::transparent);
    Q_INVOKABLE void setBackgroundSkin(QString sTitleSkin);
    Q_INVOKABLE void setMenuButtonRelease(bool bActive);
    Q_INVOKABLE void setTimeLabelVisible(bool bVisible);
    // The close, minimise, maximise and restore icons; the restore icon is shown on the
    // maximise button while the window is maximised.
    Q_INVOKABLE void setSysBtnIcon(QString closeIcon, QString minIcon, QString maxIcon, QString contractIcon);

    // A hover highlight for the system buttons. The default buttons keep the platform look;
    // applications that want this one apply it themselves.
    static QString sysButtonHoverStyle();

Q_SIGNALS:
    void sigClose();
    void sigMinimized();
    void sigNormal();
    void sigMaximized();
    void sigConfiguration();
    // For derived title bars (a menu button, a checkable logo); the base never emits them.
    void sigCustomMenu();
    void sigIconCheck(bool isCheck);

protected Q_SLOTS:
    void slotShowMaxNormal();

protected:
    virtual void initLeftLayout();
    virtual void initRightStatusLayout();
    // The default clock and system buttons.
    virtual void initSysBtnLayout();

    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

    QHBoxLayout* hleftLayout;
    QHBoxLayout* hRightStatusLayout;
    QHBoxLayout* hSysBtnLayout;
    // The system buttons by role value; derived title bars register theirs here.
    QMap<int, QWidget*> roleButtons;

private:
    void applySysBtnRoles();

    QSharedPointer<ITitleBarWidgetImpl> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ITitleBarWidget::SysBtnRoles)
Q_DECLARE_METATYPE(ITitleBarWidget::SysBtnRoles)
