#include "inputlineedit.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

InputLineEdit::InputLineEdit(QWidget* parent)
    : QLineEdit(parent)
{
    init();
}

InputLineEdit::InputLineEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
{
    init();
}

void InputLineEdit::init()
{
    m_iconLabel = new QLabel(this);
    m_tipLabel = new QLabel(this);
    m_tipLabel->setStyleSheet(QStringLiteral("color: grey;"));
    m_tipLabel->setAlignment(Qt::AlignVCenter);
    m_tipLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_tipLabel->setVisible(text().isEmpty());
    connect(this, &QLineEdit::textChanged, this, [this](const QString& text) { m_tipLabel->setVisible(text.isEmpty()); });
}

void InputLineEdit::SetTipText(const QString& text)
{
    m_tipLabel->setText(text);
}

void InputLineEdit::SetTipIcon(const QString& path)
{
    m_tipIcon.load(path);
    relayout();
}

void InputLineEdit::relayout()
{
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void InputLineEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    const int h = event->size().height();
    const QRect r = rect();
    m_iconLabel->setGeometry(r.left() + h / 4, r.top() + h / 4, h / 2, h / 2);
    if (!m_tipIcon.isNull())
        m_iconLabel->setPixmap(m_tipIcon.scaled(h / 2, h / 2, Qt::IgnoreAspectRatio, Qt::FastTransformation));
    const int tipLeft = m_iconLabel->x() + h / 2 + 6;
    m_tipLabel->setGeometry(tipLeft, r.top(), r.right() - tipLeft, h);
    // The icon's room is kept free even without an icon, so texts line up across fields.
    setTextMargins(3 * h / 4, 0, 0, 0);
}

void InputLineEdit::moveEvent(QMoveEvent* event)
{
    QLineEdit::moveEvent(event);
    relayout();
}
