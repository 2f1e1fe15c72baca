#pragma once

#include "vorlinglobal.h"

#include <QtCore/QTimer>
#include <QtGui/QColor>
#include <QtWidgets/QDialog>

// The busy spinner of the progress dialog: a translucent, frameless 200 x 200 window
// showing only a ring of ten dots, the biggest of which moves one place every 150 ms.
class VORLIN_EXPORT WaitingDialog : public QDialog
{
    Q_OBJECT
public:
    explicit WaitingDialog(QWidget* parent = nullptr, const QColor& dotColor = Qt::darkMagenta);

    void startAnimation();
    void stopAnimation();
    bool isRunning() const { return m_running; }
    // Which dot is the biggest, 0 to 9.
    int step() const { return m_step; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void advance();

    int m_step = 0;
    bool m_running = false;
    QColor m_dotColor;
    QTimer m_stepTimer;
};
