#pragma once

#include "vorlinglobal.h"

#include <QtGui/QPixmap>
#include <QtWidgets/QStyledItemDelegate>

class QComboBox;

// Rows of a combo box's drop-down list: a plain background that lightens on the focused row,
// text elided to 130 pixels, and on the focused row an optional delete icon whose click is
// reported through deleteItem(). The delegate never removes rows itself.
class VORLIN_EXPORT ItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit ItemDelegate(QObject* parent = nullptr);

    void setDelegateComboBox(QComboBox* comboBox);
    void enableRightPixmap(bool enable);
    void setBackgroundColor(const QColor& row, const QColor& focusedRow);
    void setTextColor(const QColor& color);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QString displayText(const QVariant& value, const QLocale& locale) const override;

    // The 12 x 12 square of a row that answers clicks with deleteItem(). It keeps clear of
    // the list's scroll bar when the box holds more entries than it shows at once.
    QRect deleteIconRect(const QRect& rowRect) const;

Q_SIGNALS:
    void deleteItem(const QModelIndex& index);

protected:
    bool editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                     const QModelIndex& index) override;

private:
    QComboBox* m_comboBox = nullptr;
    QPixmap m_deleteIcon;
    QColor m_rowColor = QColor(255, 255, 255);
    QColor m_focusedRowColor = QColor(243, 243, 243);
    QColor m_textColor = QColor(0, 0, 0);
    bool m_deleteIconEnabled = false;
};
