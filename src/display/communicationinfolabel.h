#pragma once

#include "icontextbutton.h"

// The link quality in percent with a signal-strength icon, for title and monitor bars.
// It is a read-out, not a button: mouse and hover events pass through to the parent.
// The level icons ":/title_info/icon_communication_<n>%.png" come from the
// application's own resources.
class VORLIN_EXPORT CommunicationInfoLabel : public IconTextButton
{
    Q_OBJECT
public:
    explicit CommunicationInfoLabel(QWidget* parent = nullptr);

    Q_INVOKABLE void setValue(int iVal);
    int value() const { return m_value; }

protected:
    void enterEvent(QEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    int m_value = 0;
};
