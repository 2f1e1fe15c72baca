#pragma once

#include "vorlinglobal.h"

#include <QtCore/QSharedPointer>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class IMoveWidgetImpl;

// The widget counterpart of IMoveDialog: a frameless window dragged from anywhere off its
// resize band, with a thin rounded border of its own.
class VORLIN_EXPORT IMoveWidget : public QWidget
{
    Q_OBJECT
public:
    explicit IMoveWidget(QWidget* parent = nullptr);
    ~IMoveWidget() override;

    Q_INVOKABLE void showFullWindow();
    Q_INVOKABLE void setEnableMoveZoom(bool bEnabled);
    Q_INVOKABLE void setBorderColor(QColor clr);
    Q_INVOKABLE void staysOnTopHint(bool bOnTop);
    Q_INVOKABLE void staysOnTopHint();

    // The resize band under pos (window coordinates) as a Windows hit-test code; 0 for none
    // and while resizing is off or the widget is maximised or full screen.
    int hitTest(const QPoint& pos) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    QSharedPointer<IMoveWidgetImpl> d;
};
