#include "basecombobox.h"

#include "itemdelegate.h"

#include <QtGui/QStandardItemModel>
#include <QtGui/QWheelEvent>

BaseComboBox::BaseComboBox(QWidget* parent)
    : QComboBox(parent)
{
    auto* delegate = new ItemDelegate(this);
    delegate->setDelegateComboBox(this);
    delegate->enableRightPixmap(true);
    setItemDelegate(delegate);
    connect(delegate, &ItemDelegate::deleteItem, this, &BaseComboBox::slotDeleteItem);
}

void BaseComboBox::insertItemsAndTips(const QStringList& texts)
{
    // The box deletes a model it parents when the next one is set.
    auto* model = new QStandardItemModel(this);
    for (const QString& text : texts) {
        auto* item = new QStandardItem(text);
        item->setToolTip(text);
        model->appendRow(item);
    }
    setModel(model);
}

void BaseComboBox::setPlaceholderText(const QString& text)
{
    if (text == m_placeholder)
        return;
    m_placeholder = text;
    QComboBox::setPlaceholderText(text); // painted by a non-editable box with nothing chosen
    setEditText(text);
}

void BaseComboBox::slotDeleteItem(const QModelIndex& index)
{
    emit deleteItem(index);
}

void BaseComboBox::focusOutEvent(QFocusEvent* event)
{
    // Calls the focus-in handler on purpose: it forwards the event to the line edit, which
    // still sees a focus-out, without the box's own focus-out handling.
    QComboBox::focusInEvent(event);
    if (currentIndex() == -1)
        setEditText(m_placeholder);
}

void BaseComboBox::wheelEvent(QWheelEvent* event)
{
    event->accept();
}
