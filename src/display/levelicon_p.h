#pragma once

#include <QtCore/QString>

namespace vorlin {

// The icon of the telemetry labels for a level 0..5, e.g. "icon_battery_60%.png" for
// level 3 of "icon_battery"; levels outside clamp to the nearest end.
QString levelIconPath(const char* stem, int level);

} // namespace vorlin
