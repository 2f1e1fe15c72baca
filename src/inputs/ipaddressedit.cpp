#include "ipaddressedit.h"

#include "dotlabel.h"
#include "ipinputedit.h"
#include "roundedpath_p.h"

#include <QtCore/QRegExp>
#include <QtCore/QTimer>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtGui/QRegExpValidator>
#include <QtWidgets/QHBoxLayout>

#include <algorithm>

namespace {

// One to three digits with a value of at most 255.
const char octetPattern[] = "(2[0-5]{2}|2[0-4][0-9]|1?[0-9]{1,2})";
const char addressPattern[] = "((2[0-4]\\d|25[0-5]|[01]?\\d\\d?)\\.){3}(2[0-4]\\d|25[0-5]|[01]?\\d\\d?)";

} // namespace

IPAddressEdit::IPAddressEdit(QWidget* parent, Qt::WindowFlags f)
    : QFrame(parent, f)
{
    initUI();
}

void IPAddressEdit::initUI()
{
    for (int i = 0; i < 3; ++i)
        m_dots[i] = new DotLabel(this);
    for (int i = 0; i < 4; ++i) {
        auto* field = new IpInputEdit(this);
        field->setObjectName(QStringLiteral("input%1Edit").arg(i + 1));
        field->setValidator(new QRegExpValidator(QRegExp(QLatin1String(octetPattern)), field));
        field->installEventFilter(this);
        connect(field, &QLineEdit::textChanged, this, &IPAddressEdit::textChanged);
        m_fields[i] = field;
    }
    for (int i = 0; i < 3; ++i)
        setTabOrder(m_fields[i], m_fields[i + 1]);

    const int margin = m_borderRadius / 2 + 1;
    m_layout = new QHBoxLayout(this);
    m_layout->setContentsMargins(margin, margin, margin, margin);
    m_layout->setSpacing(1);
    for (int i = 0; i < 4; ++i) {
        m_layout->addWidget(m_fields[i]);
        if (i < 3)
            m_layout->addWidget(m_dots[i]);
    }

    QFont f = font();
    f.setPixelSize(14);
    applyFont(f);

    // Style sheets set in the constructor would be overridden by an application style sheet
    // applied later; once the event loop runs, let the frame's own background show through.
    QTimer::singleShot(0, this, [this] {
        for (IpInputEdit* field : m_fields)
            field->setStyleSheet(QStringLiteral("background-color: transparent;"));
    });
}

void IPAddressEdit::applyFont(const QFont& font)
{
    QFrame::setFont(font);
    for (IpInputEdit* field : m_fields)
        field->setFont(font);
}

void IPAddressEdit::setFocus()
{
    m_fields[0]->setFocus(Qt::OtherFocusReason);
}

void IPAddressEdit::setFontSize(int pixelSize)
{
    QFont f = font();
    f.setPixelSize(qMax(pixelSize, 9));
    applyFont(f);
    update();
}

void IPAddressEdit::setBkgColor(const QColor& color)
{
    if (color == m_bkgColor)
        return;
    m_bkgColor = color;
    update();
}

void IPAddressEdit::setBorderColor(const QColor& color)
{
    if (color == m_borderColor)
        return;
    m_borderColor = color;
    update();
}

void IPAddressEdit::setBorderRadius(int radius)
{
    if (radius == m_borderRadius)
        return;
    m_borderRadius = radius;
    const int margin = radius / 2 + 1;
    m_layout->setContentsMargins(margin, margin, margin, margin);
    update();
}

void IPAddressEdit::setText(const QString& strIP)
{
    const QRegExp address{QLatin1String(addressPattern)};
    if (!address.exactMatch(strIP) || strIP == m_ip)
        return;
    const QStringList parts = strIP.split(QLatin1Char('.'));
    for (int i = 0; i < 4; ++i)
        m_fields[i]->setText(parts.at(i));
    m_ip = strIP;
}

void IPAddressEdit::clear()
{
    for (IpInputEdit* field : m_fields)
        field->clear();
    m_fields[0]->setFocus(Qt::OtherFocusReason);
}

void IPAddressEdit::textChanged(const QString& text)
{
    bool ok = false;
    const int value = text.toInt(&ok);
    if (text.size() == 3 && ok && value >= 100 && value <= 255)
        focusNextChild();

    m_ip = QStringLiteral("%1.%2.%3.%4")
               .arg(m_fields[0]->text(), m_fields[1]->text(), m_fields[2]->text(), m_fields[3]->text());
}

bool IPAddressEdit::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QFrame::eventFilter(watched, event);
    auto* field = qobject_cast<IpInputEdit*>(watched);
    if (!field || !std::count(std::begin(m_fields), std::end(m_fields), field))
        return QFrame::eventFilter(watched, event);

    // The key always goes on to the field: a dot is then refused by its validator, and a
    // Backspace still erases in the field it was typed into.
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->text().contains(QLatin1Char('.')))
        focusNextChild();
    else if (key->key() == Qt::Key_Backspace && field->text().size() < 2)
        focusPreviousChild();
    return QFrame::eventFilter(watched, event);
}

void IPAddressEdit::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QPainterPath path = vorlin::roundedRectPath(rect(), m_borderRadius);
    if (m_bkgColor != QColor(Qt::transparent)) {
        painter.setPen(m_bkgColor);
        painter.fillPath(path, m_bkgColor);
    }
    if (m_borderColor != QColor(Qt::transparent)) {
        painter.setPen(QPen(m_borderColor, 1.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
        painter.drawPath(path);
    }
}

// Clicks on the frame between the fields stop here instead of reaching the parent.
void IPAddressEdit::mousePressEvent(QMouseEvent* event)
{
    event->accept();
}

void IPAddressEdit::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}
