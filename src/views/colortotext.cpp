#include "colortotext.h"

QString colorToText(const QColor& color, const QString& format)
{
    if (format == QLatin1String("RGBA"))
        return QStringLiteral("rgba(%1,%2,%3,%4)").arg(color.red()).arg(color.green()).arg(color.blue()).arg(color.alpha());
    if (format == QLatin1String("RGB"))
        return QStringLiteral("rgb(%1,%2,%3)").arg(color.red()).arg(color.green()).arg(color.blue());
    if (format == QLatin1String("HEX")) {
        const QString alpha = color.alpha() == 255 ? QString() : QString::asprintf("%02X", color.alpha());
        return QString::asprintf("#%s%02X%02X%02X", qPrintable(alpha), color.red(), color.green(), color.blue());
    }
    return QString();
}
