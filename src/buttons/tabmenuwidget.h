#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class TabMenuItemWidget;

// A horizontal menu bar of TabMenuItemWidget entries, reporting every choice as
// (main id, sub id) with sub id -1 for an entry without drop-down.
class VORLIN_EXPORT TabMenuWidget : public QWidget
{
    Q_OBJECT
public:
    explicit TabMenuWidget(QWidget* parent = nullptr);
    ~TabMenuWidget() override;

    void insertMenuItem(TabMenuItemWidget* item);
    // id -1 sets the width of every entry.
    void setMenuItemWidth(int width, int id);
    // Checks the main entries with that id and unchecks every other one with all of
    // its sub-entries. The sub id is only reported, not checked.
    void setCurrentMenuItem(int iMainItemID, int iSubItemID, bool emitSignal);
    TabMenuItemWidget* currentMenuItem() const;
    QString currentMenuItemText() const;
    void setBackgroundColor(const QColor& color);

Q_SIGNALS:
    void sigMenuItemClicked(int iMainItemID, int iSubItemID);

protected Q_SLOTS:
    void slotMenuItemClicked(int iMainItemID, int iSubItemID);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    void postRelayout();

    QList<TabMenuItemWidget*> m_items;
    QColor m_backgroundColor = Qt::blue;
};
