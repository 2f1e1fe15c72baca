#pragma once

#include "vorlinglobal.h"

#include <QtCore/QMap>
#include <QtCore/QPair>
#include <QtGui/QColor>
#include <QtWidgets/QWidget>

// A coloured dot whose colour and tool tip follow an integer state, looked up in a table
// filled with addState().
class VORLIN_EXPORT ColorStatusWidget : public QWidget
{
    Q_OBJECT
public:
    explicit ColorStatusWidget(QWidget* parent = nullptr);

    // Adds the state, or replaces colour and tip of a known one.
    void addState(int state, QColor color, const QString& tip);
    // Unknown states are stored but paint nothing and leave the tool tip alone.
    void setState(int state);
    int stateValue() const { return m_state; }
    void setEnabledToolTip(bool enabled);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_toolTipEnabled = true;
    int m_state = 0;
    QMap<int, QPair<QColor, QString>> mapColorTips;
};
