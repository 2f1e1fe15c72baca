#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class MenuItem;

// The drop-down of a tab menu entry: a frameless tool-tip window holding a column
// of sub-entries, sized to hold all of them.
class VORLIN_EXPORT PopupMenuWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PopupMenuWidget(QWidget* parent = nullptr);
    ~PopupMenuWidget() override;

    // Null when an entry with that id exists already.
    MenuItem* createSubMenuItem(int id, const QString& text);
    bool isSubMenuEmpty() const;
    void resetSubMenuItems();
    void setSubMenuItemChecked(int id);
    MenuItem* subCheckedMenuItem() const;
    void setSubItemHeight(int height);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void postRelayout();

    QList<MenuItem*> m_items;
    int m_itemHeight = 30;
};
