#pragma once

#include "vorlinglobal.h"

#include <QtWidgets/QStyledItemDelegate>

// Shows a row's full text as its tool tip, for lists too narrow for their entries.
class VORLIN_EXPORT HoverItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT
public:
    explicit HoverItemDelegate(QObject* parent = nullptr);

    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                   const QModelIndex& index) override;
};
