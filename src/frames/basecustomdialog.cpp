#include "basecustomdialog.h"

#include "basecustomdialog_p.h"
#include "framelessresize.h"
#include "movableframe_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QFrame>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>

BaseCustomDialog::BaseCustomDialog(QWidget* parent)
    : QDialog(parent)
    , d(new BaseCustomDialogImpl(this, QStringLiteral("BaseCustomDialog")))
{
    connect(d->pBtnClose, &QToolButton::clicked, this, &QWidget::close);
    connect(d->pBtnMenu, &QToolButton::clicked, this, &BaseCustomDialog::sigShowMenu);
    vorlin::platform::installFramelessResize(this, [this](const QPoint& pos) { return hitTest(pos); });
}

BaseCustomDialog::~BaseCustomDialog() = default;

QWidget* BaseCustomDialog::Container()
{
    return d->ContainerFrame;
}

void BaseCustomDialog::SetDialogTitle(const QString& title, const QString& logoPath)
{
    d->setDialogTitle(title, logoPath);
}

void BaseCustomDialog::HiddenSysButton(bool hideMenu, bool hideClose)
{
    d->pBtnMenu->setHidden(hideMenu);
    d->pBtnClose->setHidden(hideClose);
}

void BaseCustomDialog::SetBorder(int width)
{
    d->borderWidth = width;
}

void BaseCustomDialog::StaysOnTopHint(bool onTop)
{
    vorlin::setStaysOnTopHint(this, onTop);
}

int BaseCustomDialog::TitleWidgetHeight() const
{
    return d->titleWidget->height();
}

void BaseCustomDialog::setMenuButtonRelease(bool enable)
{
    d->pBtnMenu->setEnabled(enable);
    d->pBtnMenu->repaint();
}

void BaseCustomDialog::setBackgroundColor(QColor color)
{
    d->background = color;
}

void BaseCustomDialog::setTitleBkColor(QColor color)
{
    d->titleBackground = color;
}

void BaseCustomDialog::setTitleTextStyle(QString styleSheet)
{
    d->titleLabel->setStyleSheet(styleSheet);
    d->titleLabel->update();
}

void BaseCustomDialog::setCloseBtnStyle(QString styleSheet, QString iconPath, QString toolTip)
{
    d->pBtnClose->setStyleSheet(styleSheet);
    if (!iconPath.isEmpty())
        d->pBtnClose->setIcon(QIcon(iconPath));
    d->pBtnClose->setToolTip(toolTip);
}

int BaseCustomDialog::hitTest(const QPoint& pos) const
{
    return d->hitTest(pos);
}

void BaseCustomDialog::ReloadSettingUI()
{
}

void BaseCustomDialog::slotUpdateBackgroundSkin(QString sTitleSkinPath, QString sContextSkinPath)
{
    d->updateBackgroundSkin(sTitleSkinPath, sContextSkinPath);
}

void BaseCustomDialog::paintEvent(QPaintEvent* event)
{
    QDialog::paintEvent(event);
    d->paintBody();
}

bool BaseCustomDialog::eventFilter(QObject* watched, QEvent* event)
{
    d->paintArea(watched, event);
    return QDialog::eventFilter(watched, event);
}

void BaseCustomDialog::showEvent(QShowEvent* event)
{
    d->watchAreas(true);
    setFocus();
    QDialog::showEvent(event);
}

void BaseCustomDialog::hideEvent(QHideEvent* event)
{
    d->watchAreas(false);
    QDialog::hideEvent(event);
}

void BaseCustomDialog::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        d->retranslate();
    QDialog::changeEvent(event);
}

void BaseCustomDialog::mousePressEvent(QMouseEvent* event)
{
    d->mousePress(event);
}

void BaseCustomDialog::mouseMoveEvent(QMouseEvent* event)
{
    d->mouseMove(event);
}

void BaseCustomDialog::mouseReleaseEvent(QMouseEvent* event)
{
    d->mouseRelease(event);
}

void BaseCustomDialog::keyPressEvent(QKeyEvent* event)
{
    // The keyboard neither rejects nor accepts the dialog.
    switch (event->key()) {
    case Qt::Key_Escape:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        return;
    default:
        QDialog::keyPressEvent(event);
    }
}

bool BaseCustomDialog::nativeEvent(const QByteArray& eventType, void* message, long* result)
{
    if (vorlin::platform::answerNativeHitTest(this, message, result, [this](const QPoint& pos) { return hitTest(pos); }))
        return true;
    return QDialog::nativeEvent(eventType, message, result);
}
