#include "iconcheckbutton.h"

IconCheckButton::IconCheckButton(QWidget* parent)
    : IconTextButton(parent)
{
    setTextColor(Qt::blue, Qt::blue, Qt::blue, Qt::yellow);
    setBackgroundColor(Qt::white, Qt::white, Qt::white, QColor(241, 241, 241));
    // The default caption is a mis-encoded placeholder that users replace through
    // setText(); it is kept byte for byte as the documented default.
    setText(QString::fromUtf8("\xe5\xa8\xb4\xe5\xac\xad\xe7\x98\xaf"));
    setRadius(10);
    setFixedSize(52, 22);
    setTextAlignment(AlignTextCenter);
    const QString enabledIcon = QStringLiteral(":/state_icon/icon_startchek.png");
    setIcon(enabledIcon, enabledIcon, enabledIcon, QStringLiteral(":/state_icon/icon_startchek_gray.png"));
}

IconCheckButton::~IconCheckButton() = default;
