#include "levelicon_p.h"

namespace vorlin {

QString levelIconPath(const char* stem, int level)
{
    return QStringLiteral(":/title_info/%1_%2%.png").arg(QLatin1String(stem)).arg(qBound(0, level, 5) * 20);
}

} // namespace vorlin
