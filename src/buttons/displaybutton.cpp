#include "displaybutton.h"

#include "roundedpath_p.h"

#include <QtCore/QDebug>
#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

DisplayButton::DisplayButton(QWidget* parent)
    : QWidget(parent)
{
    QFont f = font();
    f.setPointSize(11);
    setFont(f);
    m_tipColors = {QColor(Qt::white), QColor(Qt::blue), QColor(Qt::blue), QColor(Qt::blue), QColor(Qt::blue)};
    m_areaColors = {QColor(Qt::black), QColor(230, 180, 86), QColor(220, 120, 6), QColor(201, 107, 0),
                    QColor(241, 241, 241)};
}

DisplayButton::~DisplayButton() = default;

void DisplayButton::setRadius(int radius)
{
    if (radius < 6 || radius == m_radius)
        return;
    m_radius = radius;
    update();
}

void DisplayButton::setTipHeight(int height)
{
    if (height < 21 || height == m_tipHeight)
        return;
    m_tipHeight = height;
    update();
}

void DisplayButton::setTipText(const QString& text)
{
    m_tipText = text;
    update();
}

QString DisplayButton::tipText() const
{
    return m_tipText;
}

void DisplayButton::setAreaText(const QString& text)
{
    m_areaText = text;
    update();
}

QString DisplayButton::areaText() const
{
    return m_areaText;
}

void DisplayButton::setTipBkgColor(const QColor& text, const QColor& normal, const QColor& hover,
                                   const QColor& press, const QColor& disable)
{
    m_tipColors = {text, normal, hover, press, disable};
    update();
}

void DisplayButton::setAreaBkgColor(const QColor& text, const QColor& normal, const QColor& hover,
                                    const QColor& press, const QColor& disable)
{
    m_areaColors = {text, normal, hover, press, disable};
    update();
}

QRect DisplayButton::areaRect() const
{
    return rect().adjusted(0, m_tipHeight, 0, 0);
}

bool DisplayButton::cursorInArea() const
{
    return areaRect().contains(mapFromGlobal(QCursor::pos()));
}

void DisplayButton::setState(int state)
{
    m_state = state;
    update();
}

void DisplayButton::enterEvent(QEvent* event)
{
    event->accept();
    setState(1);
}

void DisplayButton::leaveEvent(QEvent* event)
{
    event->accept();
    setState(0);
}

void DisplayButton::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
    if (!cursorInArea())
        setState(1);
}

void DisplayButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && cursorInArea())
        setState(2);
}

void DisplayButton::mouseReleaseEvent(QMouseEvent* event)
{
    setState(1);
    if (event->button() == Qt::LeftButton && cursorInArea())
        Q_EMIT sigClicked();
}

QPainterPath DisplayButton::tipPath(int x, int y, int w, int h, int radius) const
{
    QPainterPath path;
    const int diameter = 2 * radius;
    if (diameter > qMin(w, h)) {
        qDebug().noquote() << "DisplayButton object:" << objectName()
                 << QString::asprintf("2 * radius(%d) > qMin(%d, %d)", radius, w, h);
        return path;
    }
    // Rounded top corners, square bottom corners.
    path.moveTo(x, y + h);
    path.lineTo(x, y + radius);
    path.arcTo(x, y, diameter, diameter, 180, -90);
    path.lineTo(x + w - radius, y);
    path.arcTo(x + w - diameter, y, diameter, diameter, 90, -90);
    path.lineTo(x + w, y + h);
    path.closeSubpath();
    return path;
}

void DisplayButton::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing, true);

    const int colorIndex = qBound(0, m_state, 3) + 1;
    const QColor tipText = m_tipColors[ColorText];
    const QColor tipBackground = m_tipColors[colorIndex];
    const QColor areaText = m_areaColors[ColorText];
    const QColor areaBackground = m_areaColors[colorIndex];

    painter.fillPath(vorlin::roundedRectPath(rect(), m_radius), areaBackground);
    painter.fillPath(tipPath(0, 0, width(), m_tipHeight, m_radius), tipBackground);

    const QRect tipRect(0, 0, width(), m_tipHeight);
    painter.setPen(tipText);
    painter.drawText(tipRect, Qt::AlignCenter, m_tipText);

    QFont bold = font();
    bold.setWeight(QFont::Bold);
    painter.setFont(bold);
    painter.setPen(areaText);
    painter.drawText(areaRect(), Qt::AlignCenter, m_areaText);
}
