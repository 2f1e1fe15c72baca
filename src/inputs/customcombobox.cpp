#include "customcombobox.h"

#include "popupcomboitemwidget.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QDebug>
#include <QtGui/QMouseEvent>
#include <QtGui/QResizeEvent>
#include <QtWidgets/QLabel>

namespace {
const QColor itemTextColor = Qt::white;
}

CustomComboBox::CustomComboBox(QWidget* parent)
    : IconTextButton(parent)
{
    setBackgroundColor(Qt::black, Qt::black, Qt::black, Qt::black);
    setTextColor(Qt::white, Qt::white, Qt::white, Qt::white);
    setTextAlignment(AlignTextLeft);
    setCheckable(CheckableFalse);
    setFontPixelSize(12, QStringLiteral("Microsoft YaHei"), false);
    setLeftMargin(9);
    setBorderWidget(1);
    const QColor border(128, 128, 128);
    setBorderColor(border, border, border, border);

    m_arrowLabel = new QLabel(this);
    m_arrowLabel->setAlignment(Qt::AlignCenter);
    m_arrowLabel->setFixedSize(12, 8);
    m_arrowLabel->setPixmap(QPixmap(QStringLiteral(":/new_png/icon_combox_arrow.png")));
    m_arrowLabel->setAttribute(Qt::WA_TransparentForMouseEvents);

    m_popup = new PopupComboItemWidget(this);
    m_popup->setAttribute(Qt::WA_TranslucentBackground);
    m_popup->setAttribute(Qt::WA_MouseTracking);
    m_popup->setWindowFlags((m_popup->windowFlags() & ~Qt::WindowSystemMenuHint) | Qt::ToolTip
                            | Qt::FramelessWindowHint);
    m_popup->hide();

    connect(this, &IconTextButton::sigClicked, this, &CustomComboBox::slotClicked);
    connect(m_popup, &PopupComboItemWidget::sigItemClicked, this, &CustomComboBox::slotItemClicked);
}

void CustomComboBox::addItems(const QStringList& texts)
{
    clear();
    for (const QString& text : texts)
        createPopItem(text);
}

IconTextButton* CustomComboBox::createPopItem(const QString& text)
{
    return createPopItem(m_popup->count(), text);
}

IconTextButton* CustomComboBox::createPopItem(int index, const QString& text)
{
    auto* item = new IconTextButton(m_popup);
    item->setMinimumHeight(m_popup->itemHeight());
    item->setLeftMargin(9);
    item->setCheckable(CheckableHold);
    item->setTextAlignment(AlignTextLeft);
    item->setTextColor(itemTextColor, itemTextColor, itemTextColor, itemTextColor);
    item->setBackgroundColor(QColor(32, 32, 32, 250), QColor(32, 32, 32, 200), QColor(32, 32, 32, 128),
                             QColor(32, 32, 32, 250));
    // The box's point size is handed over as a pixel size. The box sets its font in pixels,
    // so its point size is -1 and the entries keep their own font size unless
    // setPopItemTextFont is called.
    item->setFontPixelSize(font().pointSize(), font().family(), font().bold());
    item->setText(text);
    m_popup->insertItem(index, item);
    return item;
}

int CustomComboBox::currentIndex() const
{
    int index = -1;
    return m_popup->contain(m_currentItem, index) ? index : -1;
}

QString CustomComboBox::currentText() const
{
    return m_currentItem ? m_currentItem->text() : QString();
}

void CustomComboBox::setCurrentIndex(int i)
{
    if (i >= m_popup->count())
        return;
    if (IconTextButton* item = m_popup->indexOf(i)) {
        m_popup->setCheckedItem(item);
        slotItemClicked(item);
    }
}

void CustomComboBox::setPlaceholderText(const QString& text)
{
    m_placeholder = text;
    if (!m_currentItem)
        showPlaceholder();
}

void CustomComboBox::setPopWidgetStyle(const QString& qss)
{
    m_popup->setStyleSheet(qss);
}

void CustomComboBox::setPopItemBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press,
                                               const QColor& disable)
{
    m_popup->setPopItemBackgroundColor(normal, hover, press, disable);
}

void CustomComboBox::setPopItemTextColor(const QColor& normal, const QColor& hover, const QColor& press,
                                         const QColor& disable)
{
    m_popup->setPopItemTextColor(normal, hover, press, disable);
}

void CustomComboBox::setPopItemTextFont(int pixelSize, const QString& family, bool bold)
{
    m_popup->setPopItemTextFont(pixelSize, family, bold);
}

void CustomComboBox::clear()
{
    m_popup->clearItems();
    m_currentItem = nullptr;
    showPlaceholder();
}

void CustomComboBox::showPlaceholder()
{
    setText(m_placeholder);
}

void CustomComboBox::slotClicked()
{
    if (m_popup->isVisible()) {
        m_popup->hide();
        return;
    }
    m_popup->move(mapToGlobal(QPoint(0, height())));
    m_popup->setFixedWidth(width());
    m_popup->show();
    qApp->installEventFilter(this);
}

void CustomComboBox::slotItemClicked(IconTextButton* item)
{
    IconTextButton* previous = m_currentItem;
    if (m_popup->contain(item)) {
        m_currentItem = item;
        setText(item->text());
        emit activated(item->text());
    } else {
        m_currentItem = nullptr;
        showPlaceholder();
    }
    if (m_currentItem != previous)
        emit currentTextChanged(currentText());
}

// Watches every press in the application while the list is open; the press itself always
// goes on to its target.
bool CustomComboBox::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const QPoint global = static_cast<QMouseEvent*>(event)->globalPos();
        const QRect popupRect(m_popup->pos(), m_popup->size());
        const QRect boxRect(mapToGlobal(QPoint(0, 0)), size());
        if (!popupRect.contains(global) && !boxRect.contains(global)) {
            qApp->removeEventFilter(this);
            m_popup->hide();
            QEvent leave(QEvent::Leave);
            leaveEvent(&leave);
        }
    }
    return IconTextButton::eventFilter(watched, event);
}

void CustomComboBox::resizeEvent(QResizeEvent* event)
{
    IconTextButton::resizeEvent(event);
    QCoreApplication::postEvent(m_popup, new QResizeEvent(m_popup->size(), m_popup->size()));
    m_arrowLabel->setGeometry(rect().width() - 6 - m_arrowLabel->width(), (height() - m_arrowLabel->height()) / 2,
                              m_arrowLabel->width(), m_arrowLabel->height());
    qDebug() << "CustomComboBox::resizeEvent" << rect() << m_arrowLabel->geometry();
}

void CustomComboBox::wheelEvent(QWheelEvent* event)
{
    IconTextButton::wheelEvent(event);
}
