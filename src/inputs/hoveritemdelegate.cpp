#include "hoveritemdelegate.h"

#include <QtGui/QHelpEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QToolTip>

HoverItemDelegate::HoverItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
}

bool HoverItemDelegate::helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                                  const QModelIndex& index)
{
    if (event && event->type() == QEvent::ToolTip) {
        const QString text = index.data(Qt::DisplayRole).toString();
        if (!text.isEmpty()) {
            QToolTip::showText(event->globalPos(), text, view);
            return true;
        }
    }
    return QStyledItemDelegate::helpEvent(event, view, option, index);
}
