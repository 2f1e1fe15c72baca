#pragma once

#include "vorlinglobal.h"

#include <QtCore/QList>
#include <QtWidgets/QWidget>

class IconTextButton;

// The drop-down window of a CustomComboBox: one IconTextButton per entry, stacked from
// y = 16 downwards. Choosing an entry keeps it pressed, hides the window and reports it.
class VORLIN_EXPORT PopupComboItemWidget : public QWidget
{
    Q_OBJECT
public:
    explicit PopupComboItemWidget(QWidget* parent = nullptr);

    // Takes the entry as a child and lays the list out again on the event loop.
    void appendItem(IconTextButton* item);
    void insertItem(int index, IconTextButton* item);
    void clearItems();

    bool contain(IconTextButton* item) const;
    bool contain(IconTextButton* item, int& index) const;
    int count() const { return m_items.size(); }
    // Entry i, or null outside the list.
    IconTextButton* indexOf(int i) const;

    void setItemHeight(int height);
    int itemHeight() const { return m_itemHeight; }

    // Restyle the entries that exist now; entries added later get the box's presets.
    void setPopItemBackgroundColor(const QColor& normal, const QColor& hover, const QColor& press,
                                   const QColor& disable);
    void setPopItemTextColor(const QColor& normal, const QColor& hover, const QColor& press, const QColor& disable);
    void setPopItemTextFont(int pixelSize, const QString& family, bool bold);

    // Leaves exactly this entry pressed (none for null).
    void setCheckedItem(IconTextButton* item);

Q_SIGNALS:
    void sigItemClicked(IconTextButton* item);

protected Q_SLOTS:
    void slotItemClicked();

protected:
    void resizeEvent(QResizeEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void adoptItem(IconTextButton* item);
    void postResize(const QSize& newSize);

    QList<IconTextButton*> m_items;
    int m_itemHeight = 30;
};
