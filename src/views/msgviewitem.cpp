#include "msgviewitem.h"

#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

namespace {
constexpr int gap = 30; // between text and time
constexpr int lineHeight = 12;
}

MsgViewItem::MsgViewItem(const MsgInfoT& info, QWidget* parent)
    : QWidget(parent)
    , m_info(info)
    , m_textLabel(new QLabel(info.text, this))
    , m_timeLabel(new QLabel(info.time.toString(QStringLiteral("MM-dd hh:mm:ss")), this))
{
    // The row measures its text with its own font: keep it at the labels' 12 pixels.
    QFont rowFont = font();
    rowFont.setPixelSize(lineHeight);
    setFont(rowFont);
    m_textLabel->setWordWrap(true);
    m_textLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_textLabel->setStyleSheet(QStringLiteral("font-size:12px;color:#444444;"));
    m_timeLabel->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_timeLabel->setStyleSheet(QStringLiteral("font-size:12px;color:#999999;"));
}

int MsgViewItem::autoHeight() const
{
    const int textWidth = qMax(1, width() - gap - m_dateTimeWidth);
    const QRect bounds = fontMetrics().boundingRect(QRect(0, 0, textWidth, lineHeight),
                                                    Qt::AlignLeft | Qt::TextWordWrap, m_info.text);
    return qMax(bounds.height(), lineHeight) + 2;
}

void MsgViewItem::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_textLabel->setGeometry(0, 0, width() - gap - m_dateTimeWidth, height());
    m_timeLabel->setGeometry(width() - m_dateTimeWidth, 0, m_dateTimeWidth, height());
}
