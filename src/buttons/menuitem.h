#pragma once

#include "icontextbutton.h"

// A menu entry: an IconTextButton with an id that stays pressed once chosen.
class VORLIN_EXPORT MenuItem : public IconTextButton
{
    Q_OBJECT
public:
    MenuItem(int id, const QString& text, QWidget* parent = nullptr);
    ~MenuItem() override;

    int menuId() const;
    // The stored checked flag, unlike IconTextButton::isChecked() which reports the look.
    bool isChecked() const;

Q_SIGNALS:
    void sigMenuItemClicked(int itemID);

private:
    int m_id;
};
