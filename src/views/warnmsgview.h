#pragma once

#include "vorlinglobal.h"

#include <QtCore/QDate>
#include <QtWidgets/QWidget>

class MsgViewWidget;

// A pop-up style warning panel: a MsgViewWidget inside a white speech bubble whose pointer
// sits on the top edge, 30 pixels in from the right. It starts with 100 demonstration
// messages.
class VORLIN_EXPORT WarnMsgView : public QWidget
{
    Q_OBJECT
public:
    explicit WarnMsgView(QWidget* parent = nullptr);

    MsgViewWidget* messageView() const { return m_view; }

Q_SIGNALS:
    // For a date-range query by the application; the panel itself never emits it.
    void sigQuery(QDate start, QDate end);

protected Q_SLOTS:
    // Placeholders: the panel has no paging and keeps its rows.
    void slotClearContent();
    void slotCurrentPageChanged(int idx);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    MsgViewWidget* m_view = nullptr;
};
