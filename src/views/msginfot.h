#pragma once

#include "vorlinglobal.h"

#include <QtCore/QDateTime>
#include <QtCore/QString>

// One message of a MsgViewWidget. The kind is kept with the row for the application's own
// use (for example 0 information, 1 warning, 2 alarm); the views do not read it.
struct VORLIN_EXPORT MsgInfoT
{
    int kind = 0;
    QString text;
    QDateTime time;
};
