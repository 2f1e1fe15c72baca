#pragma once

#include "vorlinglobal.h"

#include "msginfot.h"

#include <QtWidgets/QWidget>

class QLabel;

// One row of a MsgViewWidget: the word-wrapped message text on the left and its time
// ("MM-dd hh:mm:ss") in a 110-pixel column on the right.
class VORLIN_EXPORT MsgViewItem : public QWidget
{
    Q_OBJECT
public:
    explicit MsgViewItem(const MsgInfoT& info, QWidget* parent = nullptr);

    // The height the row needs at its current width: at least one 12-pixel line, plus 2.
    int autoHeight() const;
    int dateTimeWidth() const { return m_dateTimeWidth; }
    const MsgInfoT& info() const { return m_info; }

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    MsgInfoT m_info;
    QLabel* m_textLabel = nullptr;
    QLabel* m_timeLabel = nullptr;
    int m_dateTimeWidth = 110;
};
