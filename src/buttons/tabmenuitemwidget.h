#pragma once

#include "menuitem.h"

class PopupMenuWidget;

// A main entry of a TabMenuWidget. With sub-entries it opens a drop-down while the
// pointer is over it and reports (main id, sub id); without, it reports (id, -1).
class VORLIN_EXPORT TabMenuItemWidget : public MenuItem
{
    Q_OBJECT
public:
    TabMenuItemWidget(int id, const QString& text, QWidget* parent = nullptr);
    ~TabMenuItemWidget() override;

    // The sub-entry takes this entry's backgrounds and current width.
    void insertSubMenuItem(int id, const QString& text);
    void setSubItemHeight(int height);
    // Unchecks this entry and all of its sub-entries.
    void resetState();

Q_SIGNALS:
    void sigTabMenuClicked(int iMainItemID, int iSubItemID);

protected Q_SLOTS:
    void slotMainMenuClicked(int itemID);
    void slotSubMenuClicked(int iSubItemID);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void closePopup();

    PopupMenuWidget* m_popup;
};
