#include "basestylesheetcombobox.h"

#include "hoveritemdelegate.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QLineEdit>

BaseStyleSheetCombobox::BaseStyleSheetCombobox(QWidget* parent)
    : QComboBox(parent)
{
    setItemDelegate(new HoverItemDelegate(this));
    setMaxVisibleItems(10);
}

void BaseStyleSheetCombobox::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    if (!lineEdit()) {
        setLineEdit(new QLineEdit(this));
        connect(this, &QComboBox::currentTextChanged, this, &BaseStyleSheetCombobox::mirrorCurrentText);
        lineEdit()->installEventFilter(this);
    }
    lineEdit()->setPlaceholderText(text);
    lineEdit()->setReadOnly(true);
    lineEdit()->clear();
    setCurrentIndex(-1);
}

void BaseStyleSheetCombobox::mirrorCurrentText(const QString& text)
{
    if (lineEdit() && lineEdit()->text() != text)
        lineEdit()->setText(text);
}

void BaseStyleSheetCombobox::showPopup()
{
    emit sigShowPopUp();
    if (count() == 0)
        return;
    m_popupShown = true;
    QComboBox::showPopup();
}

void BaseStyleSheetCombobox::hidePopup()
{
    m_popupShown = false;
    QComboBox::hidePopup();
}

bool BaseStyleSheetCombobox::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == lineEdit() && event->type() == QEvent::MouseButtonPress && isEnabled()) {
        if (m_popupShown)
            hidePopup();
        else
            showPopup();
    }
    return QComboBox::eventFilter(watched, event);
}

void BaseStyleSheetCombobox::wheelEvent(QWheelEvent* event)
{
    event->accept();
}
