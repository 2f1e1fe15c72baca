#include "stateswitchbutton.h"

namespace {

// The indicator is replaced by the switch pictures; rules are joined by a space and two tabs.
const char* const SwitchStyleSheet =
    "QCheckBox { spacing: 5px; } \t\t"
    "QCheckBox::indicator { margin-left:6px; width:40px; height:26px; } \t\t"
    "QCheckBox::indicator:unchecked { image:url(\":/state_icon/switch_off.png\"); } \t\t"
    "QCheckBox::indicator:checked { image:url(\":/state_icon/switch_on.png\"); }";

} // namespace

StateSwitchButton::StateSwitchButton(const QString& text, QWidget* parent)
    : QCheckBox(text, parent)
{
    init(parent);
}

StateSwitchButton::StateSwitchButton(QWidget* parent)
    : QCheckBox(parent)
{
    init(parent);
}

StateSwitchButton::~StateSwitchButton() = default;

void StateSwitchButton::init(QWidget*)
{
    setStyleSheet(QLatin1String(SwitchStyleSheet));
}
