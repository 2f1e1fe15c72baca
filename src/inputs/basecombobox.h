#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QComboBox>

// A history-style combo box whose drop-down rows carry a delete icon. A click on the icon is
// reported through deleteItem(); removing the row is up to the owner. While nothing is
// chosen the box shows its placeholder text. The mouse wheel never changes the selection.
class VORLIN_EXPORT BaseComboBox : public QComboBox
{
    Q_OBJECT
public:
    explicit BaseComboBox(QWidget* parent = nullptr);

    // Replaces the model with one row per text, each with its text as tool tip.
    void insertItemsAndTips(const QStringList& texts);

    void setPlaceholderText(const QString& text);
    QString placeholderText() const { return m_placeholder; }

Q_SIGNALS:
    void deleteItem(const QModelIndex& index);

protected Q_SLOTS:
    void slotDeleteItem(const QModelIndex& index);

protected:
    void focusOutEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    QString m_placeholder;
};
