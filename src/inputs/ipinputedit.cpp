#include "ipinputedit.h"

IpInputEdit::IpInputEdit(QWidget* parent)
    : QLineEdit(parent)
{
    setFrame(false);
    setAlignment(Qt::AlignCenter);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}
