#pragma once

#include "vorlinglobal.h"

#include <QtCore/QSharedPointer>
#include <QtWidgets/QDialog>

class IMoveDialogImpl;

// Base of secondary frameless dialogs that behave like the main window: dragged from
// anywhere off their 8-pixel resize band, resized from it, snapped to maximised at the top
// of the screen. Moving and resizing can be switched off. While dragged it shows the
// application's cursor image ":/Dialog/cursor".
class VORLIN_EXPORT IMoveDialog : public QDialog
{
    Q_OBJECT
public:
    explicit IMoveDialog(QWidget* parent = nullptr);
    ~IMoveDialog() override;

    // Saves the current size as the one to restore to, then maximises. Call it before the
    // user drags a maximised dialog: with no saved size the restored dialog jumps.
    Q_INVOKABLE void showFullWindow();
    // Switches edge resizing on or off; dragging stays possible.
    Q_INVOKABLE void setEnableMoveZoom(bool bEnabled);

    // The resize band under pos (window coordinates) as a Windows hit-test code; 0 for none
    // and while resizing is off or the dialog is maximised or full screen.
    int hitTest(const QPoint& pos) const;

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool nativeEvent(const QByteArray& eventType, void* message, long* result) override;

private:
    QSharedPointer<IMoveDialogImpl> d;
};
