#include "valuelabel.h"

ValueLabel::ValueLabel(const QString& text, QWidget* parent)
    : ColorLabel(text, parent)
{
}

ValueLabel::ValueLabel(QWidget* parent)
    : ColorLabel(parent)
{
}
