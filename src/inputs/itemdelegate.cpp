#include "itemdelegate.h"

#include <QtGui/QMouseEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>

namespace {
constexpr int iconSize = 12;
}

ItemDelegate::ItemDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
    , m_deleteIcon(QStringLiteral(":/state_icon/icon_delete_gray.png"))
{
}

void ItemDelegate::setDelegateComboBox(QComboBox* comboBox)
{
    m_comboBox = comboBox;
}

void ItemDelegate::enableRightPixmap(bool enable)
{
    m_deleteIconEnabled = enable;
}

void ItemDelegate::setBackgroundColor(const QColor& row, const QColor& focusedRow)
{
    m_rowColor = row;
    m_focusedRowColor = focusedRow;
}

void ItemDelegate::setTextColor(const QColor& color)
{
    m_textColor = color;
}

void ItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const bool focused = option.state & QStyle::State_HasFocus;
    painter->fillRect(option.rect, focused ? m_focusedRowColor : m_rowColor);

    QStyleOptionViewItem shifted(option);
    shifted.palette.setBrush(QPalette::Text, m_textColor);
    shifted.rect.translate(2, 0);
    QStyledItemDelegate::paint(painter, shifted, index);

    if (m_deleteIconEnabled && focused) {
        const QRect& r = option.rect;
        painter->drawPixmap(QRect(r.left() + r.width() - 20, r.top() + (r.height() - iconSize) / 2, iconSize, iconSize),
                            m_deleteIcon);
    }
}

QSize ItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    return QStyledItemDelegate::sizeHint(option, index) + QSize(0, 16);
}

QString ItemDelegate::displayText(const QVariant& value, const QLocale& locale) const
{
    const QFont font = m_comboBox ? m_comboBox->font() : QFont();
    return QFontMetrics(font).elidedText(QStyledItemDelegate::displayText(value, locale), Qt::ElideRight, 130);
}

QRect ItemDelegate::deleteIconRect(const QRect& rowRect) const
{
    int x = rowRect.left() + rowRect.width() - 20;
    if (m_comboBox) {
        const bool scrolls = m_comboBox->count() > m_comboBox->maxVisibleItems();
        x = rowRect.left() + m_comboBox->width() - (scrolls ? 35 : 20);
    }
    return QRect(x, rowRect.top() + (rowRect.height() - iconSize) / 2, iconSize, iconSize);
}

bool ItemDelegate::editorEvent(QEvent* event, QAbstractItemModel* model, const QStyleOptionViewItem& option,
                               const QModelIndex& index)
{
    const QRect hit = deleteIconRect(option.rect);
    const bool mouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseMove;
    const bool inside = mouse && hit.contains(static_cast<QMouseEvent*>(event)->pos());
    if (event->type() == QEvent::MouseButtonPress && inside)
        emit deleteItem(index);
    // Every call pushes another override cursor; nothing here pops them.
    if (event->type() == QEvent::MouseMove && inside)
        QApplication::setOverrideCursor(Qt::PointingHandCursor);
    else
        QApplication::setOverrideCursor(Qt::ArrowCursor);
    return QStyledItemDelegate::editorEvent(event, model, option, index);
}
