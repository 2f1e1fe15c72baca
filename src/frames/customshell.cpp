#include "customshell_p.h"

#include "edgeband_p.h"
#include "roundedpath_p.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QVBoxLayout>

namespace vorlin {

namespace {

QString skinFile(const QString& name)
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/Skins/") + name;
}

} // namespace

CustomShell::CustomShell(QWidget* shell, const QString& defaultObjectName)
    : m_shell(shell)
{
    if (shell->objectName().isEmpty())
        shell->setObjectName(defaultObjectName);
    shell->resize(283, 200);
    setupForm();

    shell->setWindowFlags(Qt::Window | Qt::FramelessWindowHint);
    shell->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    shell->setAttribute(Qt::WA_TranslucentBackground);
    logoLabel->setFrameShape(QFrame::NoFrame);
    logoLabel->setStyleSheet(QStringLiteral("background-color: transparent;"));
    titleLabel->setStyleSheet(QStringLiteral("background-color: transparent; color: #FFFFFF"));

    // The application's button strip: the close icon is its fourth 24-pixel cell.
    pBtnClose->setIcon(QPixmap(skinFile(QStringLiteral("sysBtnImges/ClostBtn.png"))).copy(48, 0, 24, 24));
    pBtnClose->setIconSize(QSize(30, 25));
    pBtnMenu->setIcon(QPixmap(skinFile(QStringLiteral("sysBtnImges/menu.png"))).copy(4, 4, 20, 16));
    pBtnMenu->setIconSize(QSize(30, 25));
    const QString buttonStyle = QStringLiteral(
        "QToolButton{background-color:transparent;} QToolButton:hover{background-color:#90FF69B4; "
        "border-radius:2px;}\t\tQToolButton:pressed{background-color:#60FF69B4; border-radius:2px;}");
    pBtnClose->setStyleSheet(buttonStyle);
    pBtnMenu->setStyleSheet(buttonStyle);
    retranslate();
}

void CustomShell::setupForm()
{
    verticalLayout = new QVBoxLayout(m_shell);
    verticalLayout->setObjectName(QStringLiteral("verticalLayout"));
    verticalLayout->setSpacing(0);
    verticalLayout->setContentsMargins(4, 4, 4, 4);

    titleWidget = new QWidget(m_shell);
    titleWidget->setObjectName(QStringLiteral("titleWidget"));
    titleWidget->setMinimumSize(180, 56);
    titleWidget->setMaximumHeight(56);

    horizontalLayout = new QHBoxLayout(titleWidget);
    horizontalLayout->setObjectName(QStringLiteral("horizontalLayout"));
    horizontalLayout->setSpacing(4);
    horizontalLayout->setContentsMargins(9, 2, 6, 2);

    logoLabel = new QLabel(QStringLiteral("Logo"), titleWidget);
    logoLabel->setObjectName(QStringLiteral("logoLabel"));
    logoLabel->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    logoLabel->setMinimumSize(30, 28);
    titleLabel = new QLabel(QStringLiteral("TextLabel"), titleWidget);
    titleLabel->setObjectName(QStringLiteral("titleLabel"));
    titleLabel->setMinimumWidth(150);
    horizontalSpacer = new QSpacerItem(20, 20, QSizePolicy::Expanding, QSizePolicy::Minimum);
    pBtnMenu = new QToolButton(titleWidget);
    pBtnMenu->setObjectName(QStringLiteral("pBtnMenu"));
    pBtnClose = new QToolButton(titleWidget);
    pBtnClose->setObjectName(QStringLiteral("pBtnClose"));
    for (QToolButton* button : {pBtnMenu, pBtnClose}) {
        button->setMinimumSize(30, 25);
        button->setMaximumSize(30, 25);
    }
    horizontalLayout->addWidget(logoLabel);
    horizontalLayout->addWidget(titleLabel);
    horizontalLayout->addItem(horizontalSpacer);
    horizontalLayout->addWidget(pBtnMenu);
    horizontalLayout->addWidget(pBtnClose);

    ContainerFrame = new QFrame(m_shell);
    ContainerFrame->setObjectName(QStringLiteral("ContainerFrame"));
    ContainerFrame->setFrameShape(QFrame::NoFrame);
    ContainerFrame->setFrameShadow(QFrame::Raised);

    verticalLayout->addWidget(titleWidget);
    verticalLayout->addWidget(ContainerFrame);
}

void CustomShell::setDialogTitle(const QString& title, const QString& logoPath)
{
    titleLabel->setText(title);
    m_shell->setWindowTitle(title);
    if (logoPath.isEmpty()) {
        logoLabel->clear();
        logoLabel->setFixedWidth(0);
    } else {
        logoLabel->setPixmap(QPixmap(logoPath).scaled(30, 30, Qt::IgnoreAspectRatio));
        logoLabel->setFixedSize(30, 30);
    }
}

void CustomShell::updateBackgroundSkin(const QString& titleSkinPath, const QString& contentSkinPath)
{
    titleSkin = titleSkinPath;
    contentSkin = contentSkinPath;
    titleWidget->update();
    ContainerFrame->update();
}

void CustomShell::retranslate()
{
    pBtnClose->setToolTip(QCoreApplication::translate(kShellContext, "close software"));
    pBtnMenu->setToolTip(QCoreApplication::translate(kShellContext, "dropdown menu"));
}

void CustomShell::paintBody()
{
    QPainter painter(m_shell);
    painter.setRenderHint(QPainter::Antialiasing);
    const int w = m_shell->width();
    const int h = m_shell->height();
    painter.fillPath(roundedRectPath(QRectF(4, 4, w - 8, h - 8), 16), background);
    // Four shadow rings, fainter inside and darker outside.
    painter.setBrush(Qt::NoBrush);
    QColor shadow(84, 84, 84);
    for (int k = 1; k <= 4; ++k) {
        shadow.setAlpha(20 * k);
        painter.setPen(shadow);
        const int grow = k - 1;
        painter.drawPath(roundedRectPath(QRectF(4 - grow, 4 - grow, w - 8 + 2 * grow, h - 8 + 2 * grow), 16));
    }
}

void CustomShell::paintArea(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || (watched != titleWidget && watched != ContainerFrame))
        return;
    auto* area = static_cast<QWidget*>(watched);
    QPainter painter(area);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    // A non-empty skin path selects the image even when it does not load.
    if (watched == titleWidget) {
        if (!titleSkin.isEmpty()) {
            painter.drawImage(QRect(4, 4, area->width(), area->height()), QImage(titleSkin));
            return;
        }
        painter.setPen(titleBackground.alpha() == 0 ? background : titleBackground);
    } else {
        if (!contentSkin.isEmpty()) {
            painter.drawImage(area->rect(), QImage(contentSkin));
            return;
        }
        painter.setPen(background);
    }
    painter.drawPath(roundedRectPath(area->rect(), 16));
}

void CustomShell::watchAreas(bool watch)
{
    for (QWidget* area : {titleWidget, static_cast<QWidget*>(ContainerFrame)}) {
        // QObject ignores a second installation of the same filter.
        if (watch)
            area->installEventFilter(m_shell);
        else
            area->removeEventFilter(m_shell);
    }
}

int CustomShell::hitTest(const QPoint& pos) const
{
    // With the default border width of 1 there is no band: the shell is not resizable
    // until a wider border is set. Tested also while maximised.
    return edgeBandHitTest(pos, m_shell->size(), {borderWidth, 0});
}

void CustomShell::mousePress(QMouseEvent* event)
{
    event->accept();
    m_shell->setFocus();
    const int inset = borderWidth + 1;
    if (event->button() == Qt::LeftButton && m_shell->rect().adjusted(inset, inset, -inset, -inset).contains(event->pos())) {
        grabPoint = event->pos();
        moving = true;
    }
}

void CustomShell::mouseMove(QMouseEvent* event)
{
    event->accept();
    if (!moving)
        return;
    if (event->buttons() & Qt::LeftButton)
        m_shell->move(event->globalPos() - grabPoint);
    else
        moving = false;
}

void CustomShell::mouseRelease(QMouseEvent* event)
{
    event->accept();
    moving = false;
    m_shell->setCursor(Qt::ArrowCursor);
}

} // namespace vorlin
