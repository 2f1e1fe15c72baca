#include "icontextbutton.h"

#include "fourstatelook_p.h"
#include "roundedpath_p.h"

#include <QtGui/QFontMetrics>
#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>

using vorlin::getStateValues;
using vorlin::setStateValues;

IconTextButton::IconTextButton(QWidget* parent)
    : QWidget(parent)
{
    setObjectName(QStringLiteral("IconTextButton"));
}

IconTextButton::~IconTextButton() = default;

void IconTextButton::setText(const QString& text)
{
    m_text = text;
    setToolTip(text);
    update();
}

QString IconTextButton::text() const
{
    return m_text;
}

void IconTextButton::setIcon(const QPixmap& normal, const QPixmap& hover, const QPixmap& press,
                             const QPixmap& disable)
{
    setStateValues(m_icons, normal, hover, press, disable);
    update();
}

void IconTextButton::setIcon(const QString& normal, const QString& hover, const QString& press,
                             const QString& disable)
{
    const QString paths[] = {normal, hover, press, disable};
    for (int state = 0; state < vorlin::DisplayStateCount; ++state) {
        // A path that does not load leaves a null pixmap, i.e. no icon in that state.
        m_icons[state] = QPixmap();
        m_icons[state].load(paths[state]);
    }
    update();
}

void IconTextButton::setTextColor(const QColor& normal, const QColor& hover, const QColor& press,
                                  const QColor& disable)
{
    setStateValues(m_textColors, normal, hover, press, disable);
    update();
}

void IconTextButton::setBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press,
                                        const QColor& disable)
{
    setStateValues(m_backgroundColors, normal, hover, press, disable);
    update();
}

void IconTextButton::backgroundColor(QColor& normal, QColor& hover, QColor& press, QColor& disable) const
{
    getStateValues(m_backgroundColors, normal, hover, press, disable);
}

void IconTextButton::setBorderColor(const QColor& normal, const QColor& hover, const QColor& press,
                                    const QColor& disable)
{
    setStateValues(m_borderColors, normal, hover, press, disable);
    update();
}

void IconTextButton::borderColor(QColor& normal, QColor& hover, QColor& press, QColor& disable) const
{
    getStateValues(m_borderColors, normal, hover, press, disable);
}

void IconTextButton::setBorderWidget(int width)
{
    m_borderWidth = width;
    update();
}

void IconTextButton::setRadius(int radius)
{
    m_radius = radius;
    update();
}

void IconTextButton::setLeftMargin(int margin)
{
    if (margin == m_leftMargin || margin < 3 || margin >= width())
        return;
    m_leftMargin = margin;
    update();
}

void IconTextButton::setTextAlignment(AlignText alignment)
{
    if (alignment == m_alignment)
        return;
    m_alignment = alignment;
    update();
}

void IconTextButton::setCheckable(CheckableType type)
{
    m_checkable = type;
    update();
}

IconTextButton::CheckableType IconTextButton::isCheckable() const
{
    return m_checkable;
}

void IconTextButton::setChecked(bool checked)
{
    // A plain (non-checkable) button only takes the checked look while hovered.
    const bool applies = (checked != m_checked && m_checkable != CheckableFalse) || m_state == StateHover;
    if (!applies)
        return;
    m_checked = checked;
    setState(checked ? StatePress : StateNormal);
}

bool IconTextButton::isChecked() const
{
    // Reports the look, not the stored flag: a checked button that was disabled
    // is not "checked" any more.
    return m_state == StatePress;
}

void IconTextButton::setDisable(bool disable)
{
    // Enabling always returns to the normal look, even for a checked button.
    setState(disable ? StateDisable : StateNormal);
}

void IconTextButton::setUnderline(bool underline)
{
    m_underline = underline;
    update();
}

void IconTextButton::setUnderlineAttribute(const QColor& color, int width)
{
    m_underlineColor = color;
    m_underlineWidth = width;
    update();
}

void IconTextButton::enableHintColor(bool enable)
{
    if (enable == m_hintEnabled)
        return;
    m_hintEnabled = enable;
    update();
}

bool IconTextButton::isEnabledHintColor() const
{
    return m_hintEnabled;
}

void IconTextButton::setHintColor(const QColor& color)
{
    if (color == m_hintColor)
        return;
    m_hintColor = color;
    update();
}

void IconTextButton::setFontBold(bool bold)
{
    QFont f = font();
    f.setWeight(bold ? QFont::Bold : QFont::Normal);
    setFont(f);
    update();
}

void IconTextButton::setFontPixelSize(int size, const QString& family, bool bold)
{
    // The current pixel size rejects the whole call: family and weight stay as they are.
    if (size <= 9 || size == font().pixelSize())
        return;
    QFont f = font();
    if (!family.isEmpty())
        f.setFamily(family);
    f.setWeight(bold ? QFont::Bold : QFont::Normal);
    f.setPixelSize(size);
    setFont(f);
    update();
}

void IconTextButton::setEnabledToolTip(bool enable)
{
    m_toolTipEnabled = enable;
}

void IconTextButton::setEnableFilterKeyPressEvent(bool enable)
{
    m_filterKeyEvents = enable;
}

void IconTextButton::setEnableFilterMousePressEvent(bool enable)
{
    m_filterMouseEvents = enable;
}

void IconTextButton::copyMemberValue(QPixmap*& icon, QColor& background, QColor& textColor,
                                     QColor& borderColor, int& borderWidth)
{
    if (!vorlin::isDisplayState(m_state))
        return;
    icon = &m_icons[m_state];
    background = m_backgroundColors[m_state];
    textColor = m_textColors[m_state];
    borderColor = m_borderColors[m_state];
    borderWidth = m_borderWidth;
}

bool IconTextButton::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::ToolTip:
        if (!m_toolTipEnabled)
            return true;
        break;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        if (m_filterKeyEvents)
            return true;
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
        if (m_filterMouseEvents)
            return true;
        break;
    default:
        break;
    }
    return QWidget::event(event);
}

// Everything a paint depends on. Compared as a whole, so that any change (through a
// setter, a subclass writing the protected members, the font or the palette) repaints.
struct IconTextButton::PaintInputs
{
    QSize size;
    qreal devicePixelRatio = 1;
    QFont font;
    QString text;
    AlignText alignment = AlignTextCenter;
    int radius = 0;
    int leftMargin = 0;
    QPixmap icon;
    QColor background;
    QColor textColor;
    QColor borderColor;
    int borderWidth = 0;
    bool underline = false;
    QColor underlineColor;
    int underlineWidth = 0;
    bool hint = false;
    QColor hintColor;

    bool operator==(const PaintInputs& o) const
    {
        return size == o.size && devicePixelRatio == o.devicePixelRatio && font == o.font && text == o.text
            && alignment == o.alignment && radius == o.radius && leftMargin == o.leftMargin
            && icon.cacheKey() == o.icon.cacheKey() && background == o.background && textColor == o.textColor
            && borderColor == o.borderColor && borderWidth == o.borderWidth && underline == o.underline
            && underlineColor == o.underlineColor && underlineWidth == o.underlineWidth && hint == o.hint
            && hintColor == o.hintColor;
    }
};

// Painting antialiased paths and shaping the caption costs far more than blitting a
// pixmap, and buttons repaint mostly for reasons other than a change of their own look
// (a parent's update, hover moving between the states), so the finished look of each
// display state is kept.
struct IconTextButton::PaintCache
{
    struct Entry
    {
        PaintInputs inputs;
        QPixmap pixmap;
    };
    Entry entries[vorlin::DisplayStateCount];
};

IconTextButton::PaintInputs IconTextButton::paintInputs()
{
    PaintInputs in;
    in.size = size();
    in.devicePixelRatio = devicePixelRatioF();
    in.font = font();
    in.text = m_text;
    in.alignment = m_alignment;
    in.radius = m_radius;
    in.leftMargin = m_leftMargin;

    QPixmap* icon = nullptr;
    copyMemberValue(icon, in.background, in.textColor, in.borderColor, in.borderWidth);
    if (icon)
        in.icon = *icon;
    // Unset colours paint nothing (text: the palette's text colour).
    if (!in.background.isValid())
        in.background = Qt::transparent;
    if (!in.textColor.isValid())
        in.textColor = palette().color(QPalette::WindowText);
    if (!in.borderColor.isValid())
        in.borderColor = Qt::transparent;

    in.underline = m_underline;
    in.underlineColor = m_underlineColor;
    in.underlineWidth = m_underlineWidth;
    in.hint = m_hintEnabled;
    in.hintColor = m_hintColor;
    return in;
}

void IconTextButton::paintEvent(QPaintEvent*)
{
    PaintInputs in = paintInputs();
    if (in.size.isEmpty())
        return;
    QPainter painter(this);
    if (!vorlin::isDisplayState(m_state)) {
        paintButton(painter, in);
        return;
    }
    if (!m_paintCache)
        m_paintCache = std::make_unique<PaintCache>();
    PaintCache::Entry& entry = m_paintCache->entries[m_state];
    if (entry.pixmap.isNull() || !(entry.inputs == in)) {
        const QSize pixels = in.size * in.devicePixelRatio;
        if (entry.pixmap.size() != pixels)
            entry.pixmap = QPixmap(pixels);
        entry.pixmap.setDevicePixelRatio(in.devicePixelRatio);
        entry.pixmap.fill(Qt::transparent);
        QPainter cachePainter(&entry.pixmap);
        paintButton(cachePainter, in);
        entry.inputs = std::move(in);
    }
    painter.drawPixmap(0, 0, entry.pixmap);
}

void IconTextButton::paintButton(QPainter& painter, const PaintInputs& in) const
{
    painter.setFont(in.font);
    painter.setRenderHint(QPainter::Antialiasing, true);

    const QRect rect(QPoint(0, 0), in.size);
    const int width = rect.width();
    const int height = rect.height();
    const QPainterPath backgroundPath = vorlin::roundedRectPath(rect, in.radius);
    painter.setPen(in.background);
    painter.fillPath(backgroundPath, QBrush(in.background, Qt::SolidPattern));

    const bool hasIcon = !in.icon.isNull() && in.icon.width() > 0;
    const int pw = hasIcon ? in.icon.width() : 0;
    const int ph = hasIcon ? in.icon.height() : 0;
    const int inset = in.leftMargin + in.radius;

    if (!hasIcon) {
        QRect textRect = rect;
        textRect.setLeft(inset);
        textRect.setWidth(width - inset);
        painter.setPen(in.textColor);
        const int flags = in.alignment == AlignTextLeft ? int(Qt::AlignLeft | Qt::AlignVCenter) : int(Qt::AlignCenter);
        painter.drawText(textRect, flags, in.text);
    } else if (in.text.isEmpty()) {
        painter.drawPixmap((width - pw) / 2, (height - ph) / 2, in.icon);
    } else {
        switch (in.alignment) {
        case AlignTextCenter:
            // Icon and caption are both centred and overlap.
            painter.drawPixmap((width - pw) / 2, (height - ph) / 2, in.icon);
            painter.setPen(in.textColor);
            painter.drawText(rect, Qt::AlignCenter, in.text);
            break;
        case AlignTextRight: {
            painter.drawPixmap(inset, (height - ph) / 2, in.icon);
            QRect textRect = rect;
            textRect.setLeft(inset + pw + 5);
            textRect.setWidth(width - 5 - inset - pw);
            painter.setPen(in.textColor);
            painter.drawText(textRect, Qt::AlignLeft | Qt::AlignVCenter, in.text);
            break;
        }
        case AlignTextBottom: {
            const QFontMetrics metrics(in.font);
            const int th = metrics.height();
            const int tw = metrics.horizontalAdvance(in.text);
            const int iconY = (height - 6 - th - ph) / 2;
            painter.drawPixmap((width - pw) / 2, iconY, in.icon);
            painter.setPen(in.textColor);
            painter.drawText(QRect((width - tw) / 2, iconY + ph + 6, tw, th), Qt::AlignCenter, in.text);
            break;
        }
        case AlignTextLeft:
            // Icon plus caption aligned left paints neither: that combination is
            // defined to show only background, underline, hint dot and border.
            break;
        }
    }

    if (in.underline) {
        painter.setRenderHint(QPainter::Antialiasing, false);
        QPen pen = painter.pen();
        pen.setColor(in.underlineColor);
        pen.setWidth(in.underlineWidth);
        painter.setPen(pen);
        painter.drawLine(rect.left(), rect.bottom(), rect.right(), rect.bottom());
    }

    if (in.hint) {
        // The dot sits in the top-right corner of the icon's box. Its brush stays
        // set on purpose: see the border below.
        painter.setRenderHint(QPainter::Antialiasing, true);
        painter.setPen(in.hintColor);
        painter.setBrush(QBrush(in.hintColor, Qt::SolidPattern));
        painter.drawEllipse(width / 2 + pw / 2 - 6, height / 2 - ph / 2 + 6, 6, 6);
    }

    if (in.borderWidth > 0) {
        // The brush is not reset: with the hint dot on, the border path is filled
        // with the hint colour and covers the content. Kept as the defined look.
        QPen pen = painter.pen();
        pen.setColor(in.borderColor);
        pen.setWidth(in.borderWidth);
        painter.setPen(pen);
        painter.drawPath(backgroundPath);
    }
}

void IconTextButton::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_state == StateDisable) {
        event->ignore();
        return;
    }
    if (m_checkable == CheckableHold)
        m_checked = true;
    else if (m_checkable == CheckableToggle)
        m_checked = !m_checked;
    setState(StatePress);
    event->accept();
}

void IconTextButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton || m_state == StateDisable) {
        event->ignore();
        return;
    }
    event->accept();
    if (!rect().contains(event->pos())) {
        // The checked flag flipped at press is deliberately not rolled back.
        setState(StateHover);
        return;
    }
    switch (m_checkable) {
    case CheckableFalse:
        setState(StateHover);
        Q_EMIT sigClicked(true);
        break;
    case CheckableHold:
        // A held button stays down; only setChecked(false) releases it.
        setState(StatePress);
        Q_EMIT sigClicked(m_checked);
        break;
    case CheckableToggle:
        setState(m_checked ? StatePress : StateHover);
        Q_EMIT sigClicked(m_checked);
        break;
    }
}

void IconTextButton::enterEvent(QEvent*)
{
    // A checked button keeps its pressed look while hovered.
    if (m_state == StateDisable || (m_checkable != CheckableFalse && m_checked))
        return;
    setState(StateHover);
}

void IconTextButton::leaveEvent(QEvent*)
{
    if (m_state == StateDisable || (m_checkable != CheckableFalse && m_checked))
        return;
    setState(StateNormal);
}

void IconTextButton::wheelEvent(QWheelEvent* event)
{
    // Wheel turns over a button never scroll an enclosing view.
    QWidget::wheelEvent(event);
    event->accept();
}

void IconTextButton::setState(int state)
{
    m_state = state;
    update();
}
