#include "itoolobject.h"

IToolObject::IToolObject(QObject* parent)
    : QObject(parent)
{
    setObjectName(QStringLiteral("IToolObject"));
}

void IToolObject::customEvent(QEvent*)
{
}
