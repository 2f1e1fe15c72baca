#pragma once

#include "vorlinglobal.h"

#include "msginfot.h"

#include <QtWidgets/QWidget>

class MsgViewItem;
class QScrollArea;

// A scrolling list of time-stamped messages, newest on top, keeping at most maxCount()
// rows. Rows lay out on the next pass of the event loop.
class VORLIN_EXPORT MsgViewWidget : public QWidget
{
    Q_OBJECT
public:
    explicit MsgViewWidget(QWidget* parent = nullptr);

    // Adds the message on top; past the cap the oldest row leaves.
    void addItem(const MsgInfoT& info);
    void clearAll();
    // Values below 1 are ignored. Lowering the cap drops at most one row at once.
    void setMaxCount(int count);
    int maxCount() const { return m_maxCount; }
    void scrollTop();

    // Newest first.
    QList<MsgViewItem*> items() const { return m_items; }
    QScrollArea* scrollArea() const { return m_scrollArea; }

protected:
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void dropOldest();
    void relayout();

    int m_maxCount = 200;
    QScrollArea* m_scrollArea = nullptr;
    QWidget* m_content = nullptr;
    QList<MsgViewItem*> m_items;
    bool m_layoutPending = false;
};
