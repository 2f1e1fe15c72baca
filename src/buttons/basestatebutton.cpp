#include "basestatebutton.h"

#include "basebutton.h"

BaseStateButton::BaseStateButton(QWidget* parent)
    : QWidget(parent)
{
    setAttribute(Qt::WA_StyledBackground);
    setObjectName(QStringLiteral("BaseStateButton"));
    setFocusPolicy(Qt::NoFocus);
    // rgb() with four values: Qt reads it as transparent black (and says so in a warning).
    setStyleSheet(QStringLiteral("BaseStateButton{ background-color: rgb(0,0,0,0); }"));
}

BaseStateButton::~BaseStateButton() = default;

void BaseStateButton::addButton(int id, const QString& text)
{
    addButton(new BaseButton(id, text, this));
}

void BaseStateButton::addButton(BaseButton* button)
{
    button->setParent(this);
    m_buttons.append(button);
    connect(button, &BaseButton::sigClicked, this, &BaseStateButton::slotClicked);
    layoutButtons();
}

BaseButton* BaseStateButton::getButton(int id) const
{
    for (BaseButton* button : m_buttons) {
        if (button->GetId() == id)
            return button;
    }
    return nullptr;
}

int BaseStateButton::currentButtonId() const
{
    return m_buttons.at(m_currentIndex)->GetId();
}

void BaseStateButton::setCurrentButtonId(int id)
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        if (m_buttons.at(i)->GetId() == id) {
            m_currentIndex = i;
            layoutButtons();
            return;
        }
    }
}

void BaseStateButton::restore()
{
    m_currentIndex = 0;
    layoutButtons();
}

void BaseStateButton::clickCurrentButton()
{
    if (m_currentIndex >= m_buttons.size())
        return;
    BaseButton* button = m_buttons.at(m_currentIndex);
    Q_EMIT button->sigClicked(button->GetId(), mapToGlobal(QPoint(0, 0)));
}

void BaseStateButton::slotClicked(int id, QPoint)
{
    m_currentIndex = m_buttons.isEmpty() ? 0 : (m_currentIndex + 1) % m_buttons.size();
    layoutButtons();
    Q_EMIT sigClicked(id, mapToGlobal(QPoint(0, 0)));
}

void BaseStateButton::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    layoutButtons();
}

void BaseStateButton::layoutButtons()
{
    for (int i = 0; i < m_buttons.size(); ++i) {
        m_buttons.at(i)->setVisible(i == m_currentIndex);
        m_buttons.at(i)->setGeometry(rect());
    }
}
