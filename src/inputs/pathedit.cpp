#include "pathedit.h"

#include <QtCore/QCoreApplication>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QToolButton>

PathEdit::PathEdit(QWidget* parent)
    : QLineEdit(parent)
{
    init();
}

PathEdit::PathEdit(const QString& text, QWidget* parent)
    : QLineEdit(text, parent)
{
    init();
}

void PathEdit::init()
{
    setReadOnly(true);
    m_openButton = new QToolButton(this);
    m_openButton->setStyleSheet(QStringLiteral("QToolButton{ background-color:transparent; }"));
    m_openButton->setToolTip(tr("open file path"));
    m_openButton->setIcon(QIcon(QStringLiteral(":/state_icon/open_file.ico")));
    m_openButton->setAutoRaise(true); // no button panel around the icon until hovered
    m_openButton->setCursor(Qt::ArrowCursor);
    connect(m_openButton, &QToolButton::clicked, this, &PathEdit::selectFile);
}

void PathEdit::SetPrefixDirPath(const QString& dir, const QString& filter)
{
    m_startDir = dir;
    m_filter = filter;
}

void PathEdit::selectFile()
{
    const QString path = QFileDialog::getOpenFileName(this, tr("Select File"), m_startDir, m_filter);
    setText(path);
    emit sigSelectPathReady(!path.isEmpty());
}

void PathEdit::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    const int h = event->size().height();
    const QRect r = rect();
    m_openButton->setGeometry(r.right() - h, r.top() + 3, h, h - 6);
    m_openButton->setIconSize(QSize(h, h - 6));
    setTextMargins(0, 0, h, 0);
}

void PathEdit::moveEvent(QMoveEvent* event)
{
    QLineEdit::moveEvent(event);
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}
