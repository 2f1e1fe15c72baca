#include "iverticalbarwidget.h"

#include "icontextbutton.h"
#include "roundedpath_p.h"

#include <QtGui/QPainter>
#include <QtWidgets/QVBoxLayout>

namespace {

constexpr int ButtonStretch = 4;

QVBoxLayout* createGroup(const char* name)
{
    auto* layout = new QVBoxLayout;
    layout->setObjectName(QLatin1String(name));
    layout->setSpacing(1);
    return layout;
}

} // namespace

IVerticalBarWidget::IVerticalBarWidget(QWidget* parent)
    : QWidget(parent)
    , m_topLayout(createGroup("vtopLayout"))
    , m_middleLayout(createGroup("vmiddleLayout"))
    , m_bottomLayout(createGroup("vbottomLayout"))
{
    auto* center = new QVBoxLayout(this);
    center->setSpacing(1);
    center->setObjectName(QStringLiteral("vCenterLayout"));
    center->setContentsMargins(2, 3, 0, 0);
    center->addLayout(m_topLayout, 0);
    center->addLayout(m_middleLayout, 0);
    center->addLayout(m_bottomLayout, 0);
}

IVerticalBarWidget::~IVerticalBarWidget() = default;

QVBoxLayout* IVerticalBarWidget::layoutAt(int layoutIndex) const
{
    switch (layoutIndex) {
    case LayoutTOP:
        return m_topLayout;
    case LayoutMIDDLE:
        return m_middleLayout;
    case LayoutBOTTOM:
        return m_bottomLayout;
    default:
        return nullptr;
    }
}

IconTextButton* IVerticalBarWidget::createButton(const QString& text)
{
    auto* button = new IconTextButton(this);
    button->setTextAlignment(IconTextButton::AlignTextBottom);
    button->setCheckable(IconTextButton::CheckableHold);
    button->setUnderline(false);
    button->setText(text);
    m_buttons.append(button);
    return button;
}

IconTextButton* IVerticalBarWidget::appendIconButton(BtnLayoutIndex layoutIndex, QString text)
{
    IconTextButton* button = createButton(text);
    button->setBackgroundColor(QColor(26, 33, 40), QColor(39, 41, 44), QColor(32, 33, 34), QColor(26, 33, 40));
    button->setFontPixelSize(14, QStringLiteral("Microsoft YaHei UI"), true);
    if (QVBoxLayout* layout = layoutAt(layoutIndex))
        layout->addWidget(button, ButtonStretch);
    return button;
}

IconTextButton* IVerticalBarWidget::insertIconButton(BtnLayoutIndex layoutIndex, int index, QString text)
{
    // Deliberately unlike appendIconButton: lighter backgrounds and no font preset.
    IconTextButton* button = createButton(text);
    button->setBackgroundColor(QColor(42, 44, 48), QColor(34, 35, 38), QColor(34, 35, 38), QColor(42, 44, 48));
    if (QVBoxLayout* layout = layoutAt(layoutIndex))
        layout->insertWidget(index, button, ButtonStretch);
    return button;
}

void IVerticalBarWidget::setContentsMargins(BtnLayoutIndex layoutIndex, int left, int top, int right, int bottom)
{
    if (QVBoxLayout* layout = layoutAt(layoutIndex))
        layout->setContentsMargins(left, top, right, bottom);
}

void IVerticalBarWidget::addStretch(BtnLayoutIndex layoutIndex, int stretch)
{
    if (QVBoxLayout* layout = layoutAt(layoutIndex))
        layout->addStretch(stretch);
}

void IVerticalBarWidget::addStretch(BtnLayoutIndex layoutIndex)
{
    // The stretch of this overload is 10, not QBoxLayout's 0.
    addStretch(layoutIndex, 10);
}

void IVerticalBarWidget::addSpacing(BtnLayoutIndex layoutIndex, int spacing)
{
    if (QVBoxLayout* layout = layoutAt(layoutIndex))
        layout->addSpacing(spacing);
}

void IVerticalBarWidget::setBackgroundColor(bool bkgEnabled, QColor color)
{
    m_backgroundEnabled = bkgEnabled;
    m_backgroundColor = color;
    update();
}

void IVerticalBarWidget::setBackgroundColor(bool bkgEnabled)
{
    setBackgroundColor(bkgEnabled, Qt::transparent);
}

void IVerticalBarWidget::setButtonTextColor(QColor normal, QColor hover, QColor press, QColor disable)
{
    for (IconTextButton* button : qAsConst(m_buttons))
        button->setTextColor(normal, hover, press, disable);
}

void IVerticalBarWidget::setButtonBackgroundColor(QColor normal, QColor hover, QColor press, QColor disable)
{
    for (IconTextButton* button : qAsConst(m_buttons))
        button->setBackgroundColor(normal, hover, press, disable);
}

void IVerticalBarWidget::setButtonBorderColor(QColor normal, QColor hover, QColor press, QColor disable)
{
    for (IconTextButton* button : qAsConst(m_buttons))
        button->setBorderColor(normal, hover, press, disable);
}

void IVerticalBarWidget::setFontPixelSize(int iSize, QString family, bool isBold)
{
    for (IconTextButton* button : qAsConst(m_buttons))
        button->setFontPixelSize(iSize, family, isBold);
}

void IVerticalBarWidget::setFontPixelSize(int iSize, QString family)
{
    setFontPixelSize(iSize, family, false);
}

void IVerticalBarWidget::setFontPixelSize(int iSize)
{
    setFontPixelSize(iSize, QStringLiteral("Microsoft YaHei"), false);
}

void IVerticalBarWidget::paintEvent(QPaintEvent* event)
{
    if (m_backgroundEnabled) {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing, true);
        vorlin::fillRoundedRect(painter, rect(), 0, m_backgroundColor);
    }
    QWidget::paintEvent(event);
}
