#include "menuitem.h"

MenuItem::MenuItem(int id, const QString& text, QWidget* parent)
    : IconTextButton(parent)
    , m_id(id)
{
    setText(text);
    setTextColor(Qt::white, Qt::white, Qt::white, Qt::white);
    setCheckable(CheckableHold);
    setTextAlignment(AlignTextCenter);
    connect(this, &IconTextButton::sigClicked, this, [this] { Q_EMIT sigMenuItemClicked(m_id); });
}

MenuItem::~MenuItem() = default;

int MenuItem::menuId() const
{
    return m_id;
}

bool MenuItem::isChecked() const
{
    return m_checked;
}
