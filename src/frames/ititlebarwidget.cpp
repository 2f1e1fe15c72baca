#include "ititlebarwidget.h"

#include "datetimelabel.h"
#include "imainwindow.h"
#include "ititlebarwidget_p.h"
#include "mainapplication.h"
#include "roundedpath_p.h"
#include "svgbutton.h"

#include <QtCore/QTimer>
#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

#include <cmath>

namespace {

IMainWindow* mainWindow()
{
    auto* app = qobject_cast<MainApplication*>(QCoreApplication::instance());
    return app ? app->MainWindow() : nullptr;
}

QToolButton* makeSysButton(QWidget* parent, const char* name, const QIcon& icon, const QString& toolTip)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setFixedSize(27, 22);
    button->setIconSize(QSize(30, 25));
    button->setFocusPolicy(Qt::NoFocus);
    button->setIcon(icon);
    button->setToolTip(toolTip);
    return button;
}

} // namespace

ITitleBarWidget::ITitleBarWidget(QWidget* parent)
    : QWidget(parent)
    , d(new ITitleBarWidgetImpl)
{
    qRegisterMetaType<ITitleBarWidget::SysBtnRoles>("ITitleBarWidget::SysBtnRoles");
    d->logo = new SvgButton(this);
    d->titleLabel = new QLabel(this); // placed by hand in resizeEvent, not by a layout

    hleftLayout = new QHBoxLayout;
    hleftLayout->setObjectName(QStringLiteral("hleftLayout"));
    hleftLayout->setContentsMargins(1, 1, 1, 1);
    hleftLayout->setSpacing(2);
    hRightStatusLayout = new QHBoxLayout;
    hRightStatusLayout->setObjectName(QStringLiteral("hRightStatusLayout"));
    hRightStatusLayout->setSpacing(2);
    hSysBtnLayout = new QHBoxLayout;
    hSysBtnLayout->setObjectName(QStringLiteral("hSysBtnLayout"));
    hSysBtnLayout->setSpacing(0);

    auto* centre = new QHBoxLayout(this);
    centre->setObjectName(QStringLiteral("hCenterLayout"));
    centre->setSpacing(6);
    centre->setContentsMargins(0, 1, 0, 0);
    centre->addLayout(hleftLayout);
    centre->addWidget(d->logo);
    centre->addLayout(hRightStatusLayout);
    centre->addLayout(hSysBtnLayout);
    centre->setStretch(2, 10); // the status area takes the free width

    // Only a main window registered before the title bar gets these connections.
    if (IMainWindow* window = mainWindow()) {
        connect(this, &ITitleBarWidget::sigClose, window, &QWidget::close);
        connect(this, &ITitleBarWidget::sigMinimized, window, &QWidget::showMinimized);
        connect(this, &ITitleBarWidget::sigNormal, window, &IMainWindow::ShowNormalWindow);
        connect(this, &ITitleBarWidget::sigMaximized, window, &IMainWindow::ShowFullWindow);
        window->installEventFilter(this);
    }
}

ITitleBarWidget::~ITitleBarWidget() = default;

void ITitleBarWidget::setLogoColor(QString strColor)
{
    QMetaObject::invokeMethod(d->logo, "setSvgColor", Q_ARG(QString, strColor));
}

void ITitleBarWidget::setTitleColor(QString strColor)
{
    d->titleLabel->setStyleSheet(QStringLiteral("color: %1").arg(strColor));
}

QString ITitleBarWidget::titleText()
{
    return d->titleLabel->text();
}

void ITitleBarWidget::setTitleText(QString sTitleText)
{
    d->titleLabel->setText(sTitleText);
}

void ITitleBarWidget::setTitleAlignment(Qt::Alignment alignment)
{
    d->titleAlignment = alignment;
}

void ITitleBarWidget::setTitleLogo(QString sTitleText, QString sLogoIconPath)
{
    if (!sLogoIconPath.isEmpty())
        QMetaObject::invokeMethod(d->logo, "setSvgPath", Q_ARG(QString, sLogoIconPath));
    d->titleLabel->setText(sTitleText);
}

void ITitleBarWidget::setLogoSize(int w, int h)
{
    QMetaObject::invokeMethod(d->logo, "setSvgWidgetRect", Q_ARG(int, w), Q_ARG(int, h));
    d->logo->setMinimumSize(w, h);
    d->logo->setMaximumSize(w, h);
}

void ITitleBarWidget::setTitleTextPalette(int textFont, QString textColor, QString fontFamily, int fontWeight)
{
    d->titleLabel->setStyleSheet(QStringLiteral("font-size:%1px;color:%2;font-family:%3;font-weight:%4")
                                     .arg(textFont)
                                     .arg(textColor, fontFamily)
                                     .arg(fontWeight));
}

void ITitleBarWidget::showSysBtnRoles(ITitleBarWidget::SysBtnRoles sysBtnRoles)
{
    d->sysBtnRoles = sysBtnRoles;
    applySysBtnRoles();
}

void ITitleBarWidget::hiddenSysBtnRoles(ITitleBarWidget::SysBtnRoles sysBtnRoles)
{
    d->sysBtnRoles &= ~sysBtnRoles;
    applySysBtnRoles();
}

void ITitleBarWidget::applySysBtnRoles()
{
    for (int role = SysBtnMenu; role <= SysBtnClose; role <<= 1) {
        if (QWidget* button = roleButtons.value(role))
            button->setVisible(d->sysBtnRoles.testFlag(SysBtnRoleType(role)));
    }
}

void ITitleBarWidget::setBackgroundColor(bool bkgEnabled, QColor color)
{
    d->backgroundColorEnabled = bkgEnabled;
    d->backgroundColor = color;
    update();
}

void ITitleBarWidget::setBackgroundSkin(QString sTitleSkin)
{
    d->backgroundSkin = QPixmap(sTitleSkin);
    update();
}

void ITitleBarWidget::setMenuButtonRelease(bool bActive)
{
    if (QWidget* button = roleButtons.value(SysBtnMenu)) {
        button->setEnabled(bActive);
        button->repaint();
    }
}

void ITitleBarWidget::setTimeLabelVisible(bool bVisible)
{
    if (auto* clock = findChild<QLabel*>(QStringLiteral("labelTime")))
        clock->setVisible(bVisible);
}

void ITitleBarWidget::setSysBtnIcon(QString closeIcon, QString minIcon, QString maxIcon, QString contractIcon)
{
    d->closeIcon = QPixmap(closeIcon);
    d->minimizeIcon = QPixmap(minIcon);
    d->maximizeIcon = QPixmap(maxIcon);
    d->restoreIcon = QPixmap(contractIcon);
    const auto setIcon = [this](int role, const QPixmap& icon) {
        if (auto* button = qobject_cast<QAbstractButton*>(roleButtons.value(role)))
            button->setIcon(icon);
    };
    setIcon(SysBtnClose, d->closeIcon);
    setIcon(SysBtnMax, d->maximizeIcon);
    setIcon(SysBtnMin, d->minimizeIcon);
}

QString ITitleBarWidget::sysButtonHoverStyle()
{
    return QStringLiteral("QToolButton{ background-color:transparent; } QToolButton:hover{ "
                          "background-color:#18FF69B4; border-radius:2px; }\t\tQToolButton:pressed{ "
                          "background-color:#08FF69B4; border-radius:2px;}");
}

void ITitleBarWidget::slotShowMaxNormal()
{
    IMainWindow* window = mainWindow();
    if (!window)
        return;
    if (window->isMaximized() || window->isFullScreen())
        emit sigNormal();
    else
        emit sigMaximized();
}

void ITitleBarWidget::initLeftLayout()
{
}

void ITitleBarWidget::initRightStatusLayout()
{
}

void ITitleBarWidget::initSysBtnLayout()
{
    // The icons stay empty until setSysBtnIcon; the maximise button starts with the
    // restore icon, as the state watcher would give a maximised window.
    QToolButton* cfg = makeSysButton(this, "cfg_button", QIcon(QStringLiteral(":/title_sysbtn/title_setting_n.png")),
                                     QStringLiteral("数据配置"));
    QToolButton* min = makeSysButton(this, "min_button", d->minimizeIcon, QStringLiteral("最小化"));
    QToolButton* max = makeSysButton(this, "max_button", d->restoreIcon, QStringLiteral("最大化"));
    QToolButton* close = makeSysButton(this, "close_button", d->closeIcon, QStringLiteral("关闭软件"));
    roleButtons.insert(SysBtnConfig, cfg);
    roleButtons.insert(SysBtnMin, min);
    roleButtons.insert(SysBtnMax, max);
    roleButtons.insert(SysBtnClose, close);

    auto* clock = new DateTimeLabel(this);
    clock->setObjectName(QStringLiteral("labelTime"));
    clock->setMinimumSize(56, 23);
    clock->setAlignment(Qt::AlignCenter);

    hSysBtnLayout->addStretch(0);
    hSysBtnLayout->addWidget(clock, 0, Qt::AlignVCenter);
    hSysBtnLayout->addSpacerItem(new QSpacerItem(4, 8, QSizePolicy::Minimum, QSizePolicy::Minimum));
    for (QToolButton* button : {cfg, min, max, close})
        hSysBtnLayout->addWidget(button, 0, Qt::AlignVCenter);
    hSysBtnLayout->setSpacing(1);
    hSysBtnLayout->setContentsMargins(0, 3, 3, 0);

    connect(close, &QToolButton::clicked, this, &ITitleBarWidget::sigClose);
    connect(min, &QToolButton::clicked, this, &ITitleBarWidget::sigMinimized);
    connect(max, &QToolButton::clicked, this, &ITitleBarWidget::slotShowMaxNormal);
    connect(cfg, &QToolButton::clicked, this, &ITitleBarWidget::sigConfiguration);
    applySysBtnRoles();
}

void ITitleBarWidget::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    if (d->backgroundColorEnabled)
        painter.fillPath(vorlin::roundedRectPath(rect(), 0), d->backgroundColor);
    else if (!d->backgroundSkin.isNull())
        painter.drawPixmap(rect(), d->backgroundSkin);
    painter.end();
    QWidget::paintEvent(event);
}

void ITitleBarWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    QLabel* label = d->titleLabel;
    int x = d->logo->geometry().right() + 10;
    const int y = rect().top() + 2;
    const int labelWidth = QFontMetrics(label->font()).horizontalAdvance(label->text()) + 100;
    const int labelHeight = height() - 2 - y;
    if ((d->titleAlignment & Qt::AlignHCenter) && width() > labelWidth)
        x = int(std::floor((width() - labelWidth) / 2.0));
    label->setGeometry(x, y, labelWidth, labelHeight);
}

void ITitleBarWidget::showEvent(QShowEvent* event)
{
    if (IMainWindow* window = mainWindow())
        window->installEventFilter(this);
    QWidget::showEvent(event);
}

void ITitleBarWidget::hideEvent(QHideEvent* event)
{
    // A hidden title bar does not follow the window's state.
    if (IMainWindow* window = mainWindow())
        window->removeEventFilter(this);
    QWidget::hideEvent(event);
}

bool ITitleBarWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::WindowStateChange && watched == mainWindow()) {
        if (auto* max = findChild<QToolButton*>(QStringLiteral("max_button"))) {
            // Only the plain states swap the icon; minimised or combined states leave it.
            const Qt::WindowStates state = static_cast<QWidget*>(watched)->windowState();
            const bool maximised = state == Qt::WindowMaximized || state == Qt::WindowFullScreen;
            if (maximised || state == Qt::WindowNoState) {
                max->setIcon(maximised ? d->restoreIcon : d->maximizeIcon);
                QCoreApplication::postEvent(max, new QEvent(QEvent::Leave)); // drop the hover highlight
            }
            QTimer::singleShot(0, this, [this] {
                if (QWidget* button = roleButtons.value(SysBtnMax)) {
                    button->setEnabled(true);
                    button->repaint();
                }
            });
        }
    }
    return QWidget::eventFilter(watched, event);
}
