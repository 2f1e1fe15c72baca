#include "fonts.h"

#include <QtGui/QFont>
#include <QtGui/QFontDatabase>
#include <QtGui/QGuiApplication>

namespace vorlin {
namespace platform {

void registerFontSubstitutions()
{
    if (!qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        return;
    const QStringList installed = QFontDatabase().families();
    QStringList substitutes;
    for (const char* family : {"WenQuanYi Micro Hei", "Noto Sans CJK SC", "Source Han Sans SC", "Droid Sans Fallback"}) {
        if (installed.contains(QLatin1String(family)))
            substitutes << QLatin1String(family);
    }
    if (substitutes.isEmpty())
        return;
    for (const char* family : {"Microsoft YaHei", "Microsoft YaHei UI"}) {
        if (!installed.contains(QLatin1String(family)))
            QFont::insertSubstitutions(QLatin1String(family), substitutes);
    }
}

} // namespace platform
} // namespace vorlin
