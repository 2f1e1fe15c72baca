#pragma once

#include "vorlinglobal.h"

#include <QtGui/QColor>
#include <QtCore/QString>

// Style-sheet text for a colour. format is "RGBA" ("rgba(r,g,b,a)"), "RGB" ("rgb(r,g,b)")
// or "HEX" ("#RRGGBB", or "#AARRGGBB" when the colour is not opaque); any other word gives
// an empty string.
VORLIN_EXPORT QString colorToText(const QColor& color, const QString& format);
