#include "imainwindow.h"

#include "framelessresize.h"
#include "edgeband_p.h"
#include "imainwindow_p.h"
#include "separatelinewidget.h"
#include "shadowwidget.h"
#include "staysontop.h"

#include <QtCore/QDateTime>
#include <QtCore/QDebug>
#include <QtCore/QPropertyAnimation>
#include <QtCore/QTimer>
#include <QtCore/QTranslator>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>
#include <QtGui/QScreen>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QStatusBar>

namespace {

MainApplication* application()
{
    return qobject_cast<MainApplication*>(QCoreApplication::instance());
}

} // namespace

IMainWindowImpl::IMainWindowImpl(IMainWindow* window)
    : drag(window, QSize(1000, 700))
{
}

IMainWindow::IMainWindow(QWidget* parent)
    : QMainWindow(parent)
    , d(new IMainWindowImpl(this))
{
    if (MainApplication* app = application())
        app->setMainWindow(this);
    // Deliberately larger than the saved normal size of 1000 x 700: a restore from
    // maximised is bounded by the minimum.
    setMinimumSize(1100, 700);
    d->translator = new QTranslator(this);
    QCoreApplication::installTranslator(d->translator);
    // Queued, so a double click is fully handled before the window changes state.
    connect(this, &IMainWindow::sigShowMaxRestore, this, &IMainWindow::ShowNormalMaxRestore, Qt::QueuedConnection);
    vorlin::platform::installFramelessResize(this, [this](const QPoint& pos) { return hitTest(pos); });
}

IMainWindow::~IMainWindow() = default;

void IMainWindow::ShowResizeWindow(int w, int h)
{
    if (w != 0 || h != 0)
        resize(w, h);
    const QRect desktop = QGuiApplication::primaryScreen()->virtualGeometry();
    move((desktop.width() - width()) / 2, (desktop.height() - 20 - height()) / 2);
    show();
}

void IMainWindow::ShowNormalMaxRestore()
{
    if (isMaximized()) {
        qDebug() << "ShowNormalMaxRestore() old size:" << size();
        ShowNormalWindow();
    } else {
        ShowFullWindow();
    }
    QTimer::singleShot(0, this, [this] { qDebug() << "ShowNormalMaxRestore() new size:" << size(); });
}

void IMainWindow::ShowFullWindow()
{
    d->drag.saveNormalSizeAndMaximize();
}

void IMainWindow::ShowNormalWindow()
{
    showNormal();
    activateWindow();
    raise();
}

void IMainWindow::ShowRaiseWindow()
{
    showMaximized();
    activateWindow();
    raise();
}

void IMainWindow::StartAnimation(int msDuration)
{
    auto* animation = new QPropertyAnimation(this, "windowOpacity", this);
    animation->setDuration(msDuration);
    animation->setStartValue(0.3);
    animation->setEndValue(1.0);
    animation->start(QAbstractAnimation::KeepWhenStopped);
}

void IMainWindow::setBorderColor(QColor clr)
{
    for (SeparateLineWidget** line : {&d->topLine, &d->leftLine, &d->rightLine, &d->bottomLine}) {
        if (!*line)
            *line = new SeparateLineWidget(this);
        (*line)->setColor(clr);
    }
}

void IMainWindow::UpdateUserLastOptTime()
{
    if (!d->userOperationTracking.load())
        return;
    const auto now = static_cast<std::uint64_t>(QDateTime::currentMSecsSinceEpoch());
    std::uint64_t stored = d->userLastOperation.load();
    if (now - stored >= 500)
        d->userLastOperation.compare_exchange_strong(stored, now);
}

uint64_t IMainWindow::getUserLastOptTime()
{
    return d->userLastOperation.load();
}

void IMainWindow::SetUserOptTimeEnable(bool isEnable)
{
    d->userOperationTracking.exchange(isEnable);
}

int IMainWindow::hitTest(const QPoint& pos) const
{
    if (isMaximized())
        return 0;
    return vorlin::edgeBandHitTest(pos, size(), {d->resizeBorderWidth, 2});
}

void IMainWindow::SetTitleWidget(QWidget* titleWidget)
{
    d->titleWidget = titleWidget;
}

void IMainWindow::SetTitleLogo(QString&, QString&)
{
}

void IMainWindow::ChangeLanguageSource(MainApplication::language_role lan)
{
    if (MainApplication* app = application())
        app->ChangeLanguageSource(lan);
}

void IMainWindow::initWindowStyle()
{
    setWindowFlags((windowFlags() & ~Qt::WindowSystemMenuHint) | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_QuitOnClose);
    setAttribute(Qt::WA_MouseTracking);
}

void IMainWindow::initStatusBarWidgetUI(bool show)
{
    // statusBar() would create one; only a window that has a status bar gets the indicator.
    auto* bar = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
    if (!bar)
        return;
    if (!show) {
        bar->hide();
        return;
    }
    bar->show();
    if (bar->findChild<QLabel*>(QStringLiteral("labelLink")))
        return;
    bar->setFixedHeight(26);
    bar->setStyleSheet(QStringLiteral("QStatusBar {background-color:transparent;}"));

    // The rule names an object name the label never gets, so the credit keeps the default
    // look; kept as it is.
    auto* credit = new QLabel(statusBarCredit(), bar);
    credit->setStyleSheet(QStringLiteral("QLabel#pCompany{color:#F0030303; font-size:14px; font-weight:normal;}"));
    bar->addPermanentWidget(credit, 0);

    auto* link = new QLabel(tr(" LinkStatus: "), bar);
    link->setObjectName(QStringLiteral("labelLink"));
    link->setStyleSheet(QStringLiteral("font-size:14px;"));
    link->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    link->setMinimumWidth(70);
    bar->addWidget(link, 0);

    auto* linkImage = new QLabel(bar);
    linkImage->setObjectName(QStringLiteral("labelLinkImg"));
    linkImage->setFixedWidth(24);
    bar->addWidget(linkImage);

    QTimer::singleShot(1000, this, &IMainWindow::slotUpdateDevLinkStatusUI);
}

QString IMainWindow::statusBarCredit() const
{
    return QString();
}

void IMainWindow::setSysBtnRelease(QBoxLayout* layout, QString objectName, bool enable)
{
    if (!layout)
        return;
    for (int i = 0; i < layout->count(); ++i) {
        QWidget* widget = layout->itemAt(i)->widget();
        if (widget && widget->objectName() == objectName) {
            widget->setEnabled(enable);
            widget->repaint();
            return;
        }
    }
}

void IMainWindow::showStayOnTopOrNot()
{
    vorlin::platform::toggleStaysOnTop(this);
}

void IMainWindow::setDeviceLinked(bool linked)
{
    d->deviceLinked = linked;
}

bool IMainWindow::isDeviceLinked() const
{
    return d->deviceLinked;
}

void IMainWindow::slotUpdateDevLinkStatusUI()
{
    static const QString linkedImage = QStringLiteral(":/state_icon/Confirm.png");
    static const QString unlinkedImage = QStringLiteral(":/state_icon/Cancel.png");
    // One blink phase for every window of the process.
    static bool blinkPhase = false;

    auto* bar = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
    QLabel* label = bar ? bar->findChild<QLabel*>(QStringLiteral("labelLinkImg")) : nullptr;
    if (!label)
        return; // the poll ends for good

    const auto icon = [](const QString& path) {
        return QPixmap(path).scaled(22, 22, Qt::IgnoreAspectRatio, Qt::FastTransformation);
    };
    int nextPoll;
    if (d->deviceLinked) {
        blinkPhase = false;
        label->setPixmap(icon(linkedImage));
        nextPoll = 1500;
    } else {
        if (blinkPhase)
            label->clear();
        else
            label->setPixmap(icon(unlinkedImage));
        blinkPhase = !blinkPhase;
        nextPoll = 700;
    }
    QTimer::singleShot(nextPoll, this, &IMainWindow::slotUpdateDevLinkStatusUI);
}

void IMainWindow::mousePressEvent(QMouseEvent* event)
{
    const int y = event->pos().y();
    if (event->type() == QEvent::MouseButtonDblClick && (event->buttons() & Qt::LeftButton)) {
        if (!d->titleWidget) {
            qDebug() << "this->frameTitle is nullptr. it's need set frameTitle by SetTitleWidget(ptrFrameTitle) ";
            return;
        }
        if (y <= d->titleWidget->height()) {
            d->titleDoubleClicked = true;
            emit sigShowMaxRestore();
            return;
        }
    }
    const bool inTitle = d->titleWidget && y <= d->titleWidget->height() && event->button() == Qt::LeftButton;
    const bool middle = event->buttons() & Qt::MiddleButton;
    if (!inTitle && !middle) {
        QMainWindow::mousePressEvent(event);
        return;
    }
    if (event->type() == QEvent::MouseButtonPress) {
        d->drag.begin(event->pos());
        setCursor(middle ? Qt::SizeAllCursor : Qt::ArrowCursor);
    }
    QMainWindow::mousePressEvent(event);
}

void IMainWindow::mouseMoveEvent(QMouseEvent* event)
{
    if (d->drag.pressed) {
        if (isMaximized())
            qDebug() << "IMainWindow::mouseMoveEvent restoring from" << size() << "maximized" << isMaximized()
                     << "fullScreen" << isFullScreen() << "minimized" << isMinimized();
        d->drag.follow(event);
    }
    QMainWindow::mouseMoveEvent(event);
}

void IMainWindow::mouseReleaseEvent(QMouseEvent* event)
{
    // Not gated on a drag: any release in the top two pixel rows snaps, unless it ends a
    // double click on the title area, which already toggled the window.
    d->drag.end(event->globalPos(), !d->titleDoubleClicked);
    d->titleDoubleClicked = false;
    setCursor(Qt::ArrowCursor);
    QMainWindow::mouseReleaseEvent(event);
}

void IMainWindow::paintEvent(QPaintEvent* event)
{
    QMainWindow::paintEvent(event);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QColor outline(80, 80, 80);
    // Two soft rings at and just outside the window's edge, the outer one fainter.
    int i = 0;
    for (int alpha = 150; alpha > 90; alpha -= 30, ++i) {
        outline.setAlpha(alpha);
        QPainterPath path;
        path.setFillRule(Qt::WindingFill);
        path.addRect(-i, -i, width() + 2 * i, height() + 2 * i);
        painter.setPen(outline);
        painter.setBrush(Qt::NoBrush);
        painter.drawPath(path);
    }
}

void IMainWindow::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    const int w = width();
    const int h = height();
    if (d->topLine)
        d->topLine->setGeometry(0, 0, w, 1);
    if (d->leftLine)
        d->leftLine->setGeometry(0, 0, 1, h);
    if (d->rightLine)
        d->rightLine->setGeometry(w - 1, 0, 1, h);
    if (d->bottomLine)
        d->bottomLine->setGeometry(0, h - 1, w, 1);
}

void IMainWindow::closeEvent(QCloseEvent* event)
{
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents, 50);
    QCoreApplication::quit();
    qDebug() << "MainWindow is Quit exec saveOptionOnQuit()";
    if (MainApplication* app = application())
        app->saveOptionOnQuit();
    QMainWindow::closeEvent(event);
}

void IMainWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        auto* bar = findChild<QStatusBar*>(QString(), Qt::FindDirectChildrenOnly);
        if (auto* link = bar ? bar->findChild<QLabel*>(QStringLiteral("labelLink")) : nullptr)
            link->setText(tr(" LinkStatus: "));
    }
    QMainWindow::changeEvent(event);
}

bool IMainWindow::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    if (vorlin::platform::answerNativeHitTest(this, message, result, [this](const QPoint& pos) { return hitTest(pos); }))
        return true;
    return QMainWindow::nativeEvent(eventType, message, result);
}
