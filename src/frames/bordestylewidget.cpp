#include "bordestylewidget.h"

#include "separatelinewidget.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

BordeStyleWidget::BordeStyleWidget(QWidget* parent)
    : QWidget(parent)
    , m_title(new QLabel(this))
    , m_topLine(new SeparateLineWidget(this))
    , m_bottomLine(new SeparateLineWidget(this))
    , m_leftLine(new SeparateLineWidget(this))
    , m_rightLine(new SeparateLineWidget(this))
{
    m_title->setMargin(9);
    m_title->setStyleSheet(QStringLiteral("background-color: #F0F0F0; font: 14px; font-weight:bold;"));
}

void BordeStyleWidget::setTitleText(QString text, QString styleSheet)
{
    m_title->setText(text);
    if (!styleSheet.isEmpty())
        m_title->setStyleSheet(styleSheet);
}

void BordeStyleWidget::insertWidget(QWidget* widget)
{
    if (widget)
        widget->setParent(this);
    m_content = widget;
    if (m_content)
        m_content->show();
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

void BordeStyleWidget::setBorderColor(QColor color)
{
    for (SeparateLineWidget* line : {m_topLine, m_bottomLine, m_leftLine, m_rightLine})
        line->setColor(color);
}

void BordeStyleWidget::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int w = width();
    const int h = height();
    m_title->setGeometry(0, 0, w, m_titleHeight);
    // The content starts on the title's last pixel row, overlapping it by one; kept.
    if (m_content)
        m_content->setGeometry(0, m_title->geometry().bottom(), w, h - m_titleHeight);
    m_topLine->setGeometry(0, 0, w, 2);
    m_leftLine->setGeometry(0, 0, 2, h);
    m_rightLine->setGeometry(w - 2, 0, 2, h);
    m_bottomLine->setGeometry(0, h - 2, w, 2);
    // The frame lines stay above the title and the content.
    for (SeparateLineWidget* line : {m_topLine, m_bottomLine, m_leftLine, m_rightLine})
        line->raise();
}
