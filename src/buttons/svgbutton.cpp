#include "svgbutton.h"

#include "fourstatelook_p.h"
#include "roundedpath_p.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtCore/QFile>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtSvg/QSvgWidget>
#include <QtXml/QDomDocument>

namespace {

constexpr int StateHover = 1;
constexpr int StatePress = 2;
constexpr int StateDisable = 3;

// Sets "fill" to color on every "g" element below (and including) element that
// already carries a fill; other elements are left without one.
void recolourGroups(QDomElement element, const QString& color)
{
    if (element.tagName() == QLatin1String("g") && element.hasAttribute(QStringLiteral("fill")))
        element.setAttribute(QStringLiteral("fill"), color);
    for (QDomElement child = element.firstChildElement(); !child.isNull(); child = child.nextSiblingElement())
        recolourGroups(child, color);
}

} // namespace

SvgButton::SvgButton(QWidget* parent)
    : QWidget(parent)
    , m_svgWidget(new QSvgWidget(this))
{
    for (QColor& color : m_backgroundColors)
        color = Qt::transparent;
    setSvgWidgetRect(width(), width());
}

SvgButton::~SvgButton() = default;

void SvgButton::setRadius(int radius)
{
    m_radius = radius;
    update();
}

void SvgButton::setSvgPath(QString sPath)
{
    m_svgPath = sPath;
    m_svgWidget->load(sPath);
}

void SvgButton::setSvgWidgetRect(int w, int h)
{
    m_iconWidth = w;
    m_iconHeight = h;
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void SvgButton::setSvgColor(QString color)
{
    if (!m_svgWidget || m_svgPath.isEmpty())
        return;

    QFile file(m_svgPath);
    if (!file.open(QIODevice::ReadOnly)) {
        qWarning() << "SvgButton::setSvgColor cannot open" << m_svgPath << file.errorString();
        return;
    }
    const QByteArray content = file.readAll();
    file.close();

    QDomDocument document;
    QString error;
    if (!document.setContent(content, &error))
        qWarning() << "SvgButton::setSvgColor cannot parse" << m_svgPath << error;
    else
        recolourGroups(document.documentElement(), color);
    // An unparsable file leaves an empty document and thus an empty icon.
    m_svgWidget->load(document.toByteArray(1));
}

void SvgButton::setBackgroundColor(QColor normal, QColor hover, QColor press, QColor disable)
{
    vorlin::setStateValues(m_backgroundColors, normal, hover, press, disable);
    update();
}

void SvgButton::setEnabledToolTip(QString stextTip, bool bEnableTooltip)
{
    setToolTip(stextTip);
    m_toolTipEnabled = bEnableTooltip;
}

bool SvgButton::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip && !m_toolTipEnabled)
        return true;
    return QWidget::event(event);
}

void SvgButton::paintEvent(QPaintEvent* event)
{
    const QColor* selected = vorlin::stateValue(m_backgroundColors, m_state);
    const QColor background = selected ? *selected : QColor(Qt::transparent);
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(background);
        painter.fillPath(vorlin::roundedRectPath(rect(), m_radius), QBrush(background, Qt::SolidPattern));
    }
    QWidget::paintEvent(event);
}

void SvgButton::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_svgWidget->setGeometry((width() - m_iconWidth) / 2, (height() - m_iconHeight) / 2, m_iconWidth,
                             m_iconHeight);
}

void SvgButton::enterEvent(QEvent*)
{
    if (m_state != StateDisable)
        setState(StateHover);
}

void SvgButton::leaveEvent(QEvent*)
{
    if (m_state != StateDisable)
        setState(0);
}

void SvgButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_state == StateDisable) {
        event->ignore();
        return;
    }
    setState(StatePress);
}

void SvgButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_state == StateDisable) {
        event->ignore();
        return;
    }
    event->accept();
    if (!rect().contains(event->pos())) {
        setState(StateHover);
        return;
    }
    // The pressed look stays until the pointer leaves.
    Q_EMIT sigClicked(true);
    update();
}

void SvgButton::setState(int state)
{
    m_state = state;
    update();
}
