#include "basebutton.h"

#include <QtGui/QCursor>
#include <QtGui/QMouseEvent>

BaseButton::BaseButton(int id, const QString& text, QWidget* parent)
    : IconTextButton(parent)
    , m_id(id)
{
    setTextColor(Qt::white, Qt::white, Qt::white, Qt::white);
    setBackgroundColor(QColor(18, 99, 196), QColor(13, 90, 182), QColor(10, 83, 170), QColor(241, 241, 241));
    setRadius(8);
    setFontPixelSize(12, QStringLiteral("Microsoft YaHei"), false);
    setText(text);
}

BaseButton::~BaseButton() = default;

int BaseButton::GetId() const
{
    return m_id;
}

void BaseButton::mousePressEvent(QMouseEvent* event)
{
    // Any button reports a press; the look stays as it is.
    event->accept();
    Q_EMIT sigPressed(m_id, mapToGlobal(QPoint(0, 0)));
}

void BaseButton::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && rect().contains(mapFromGlobal(QCursor::pos())))
        Q_EMIT sigClicked(m_id, mapToGlobal(QPoint(0, 0)));
}
