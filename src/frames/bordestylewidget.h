#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtWidgets/QWidget>

class QLabel;
class SeparateLineWidget;

// A simple bordered panel: a 40-pixel title strip above one content widget, framed by
// two-pixel lines.
class VORLIN_EXPORT BordeStyleWidget : public QWidget
{
    Q_OBJECT
public:
    explicit BordeStyleWidget(QWidget* parent = nullptr);

    // Sets the title text, and the title's style sheet unless it is empty.
    void setTitleText(QString text, QString styleSheet = QString());
    // Takes the widget as the panel's content; it is laid out on the next event-loop turn.
    void insertWidget(QWidget* widget);
    void setBorderColor(QColor color);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    int m_titleHeight = 40;
    QLabel* m_title;
    QWidget* m_content = nullptr;
    SeparateLineWidget* m_topLine;
    SeparateLineWidget* m_bottomLine;
    SeparateLineWidget* m_leftLine;
    SeparateLineWidget* m_rightLine;
};
