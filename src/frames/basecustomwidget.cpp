#include "basecustomwidget.h"

#include "basecustomwidget_p.h"
#include "framelessresize.h"
#include "movableframe_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

BaseCustomWidget::BaseCustomWidget(QWidget* parent)
    : QWidget(parent)
    , d(new BaseCustomWidgetImpl(this, QStringLiteral("BaseCustomWidget")))
{
    connect(d->pBtnClose, &QToolButton::clicked, this, &QWidget::close);
    connect(d->pBtnMenu, &QToolButton::clicked, this, &BaseCustomWidget::sigShowMenu);
    d->titleLabel->setFont(QFont(QStringLiteral("Microsoft YaHei UI"), 10, QFont::Normal));
    const QString skins = QCoreApplication::applicationDirPath() + QStringLiteral("/Skins/");
    d->contentSkin = skins + QStringLiteral("BaseDialogContextSkin.jpg");
    d->titleSkin = skins + QStringLiteral("BaseDialogTitleSkin.png");
    vorlin::platform::installFramelessResize(this, [this](const QPoint& pos) { return hitTest(pos); });
}

BaseCustomWidget::~BaseCustomWidget() = default;

QWidget* BaseCustomWidget::Container()
{
    return d->ContainerFrame;
}

void BaseCustomWidget::SetDialogTitle(const QString& title, const QString& logoPath)
{
    d->setDialogTitle(title, logoPath);
}

void BaseCustomWidget::HiddenSysButton(bool hideMenu, bool hideClose)
{
    d->pBtnMenu->setHidden(hideMenu);
    d->pBtnClose->setHidden(hideClose);
}

void BaseCustomWidget::SetBorder(int width)
{
    d->borderWidth = width;
}

void BaseCustomWidget::StaysOnTopHint(bool onTop)
{
    vorlin::setStaysOnTopHint(this, onTop);
}

int BaseCustomWidget::TitleWidgetHeight() const
{
    return d->titleWidget->height();
}

void BaseCustomWidget::setMenuButtonRelease(bool enable)
{
    d->pBtnMenu->setEnabled(enable);
    d->pBtnMenu->repaint();
}

int BaseCustomWidget::hitTest(const QPoint& pos) const
{
    return d->hitTest(pos);
}

void BaseCustomWidget::ReloadSettingUI()
{
}

void BaseCustomWidget::slotUpdateBackgroundSkin(QString sTitleSkinPath, QString sContextSkinPath)
{
    d->updateBackgroundSkin(sTitleSkinPath, sContextSkinPath);
}

void BaseCustomWidget::paintEvent(QPaintEvent* event)
{
    QWidget::paintEvent(event);
    d->paintBody();
}

bool BaseCustomWidget::eventFilter(QObject* watched, QEvent* event)
{
    d->paintArea(watched, event);
    return QWidget::eventFilter(watched, event);
}

void BaseCustomWidget::showEvent(QShowEvent* event)
{
    d->watchAreas(true);
    setFocus();
    QWidget::showEvent(event);
}

void BaseCustomWidget::hideEvent(QHideEvent* event)
{
    d->watchAreas(false);
    QWidget::hideEvent(event);
}

void BaseCustomWidget::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QWidget::changeEvent(event);
}

void BaseCustomWidget::mousePressEvent(QMouseEvent* event)
{
    d->mousePress(event);
}

void BaseCustomWidget::mouseMoveEvent(QMouseEvent* event)
{
    d->mouseMove(event);
}

void BaseCustomWidget::mouseReleaseEvent(QMouseEvent* event)
{
    d->mouseRelease(event);
}

bool BaseCustomWidget::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    if (vorlin::platform::answerNativeHitTest(this, message, result, [this](const QPoint& pos) { return hitTest(pos); }))
        return true;
    return QWidget::nativeEvent(eventType, message, result);
}
