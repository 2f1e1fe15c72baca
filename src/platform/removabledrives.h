#pragma once

#include <QtCore/QStringList>

namespace vorlin {
namespace platform {

// Root paths of the mounted removable drives (USB sticks, card readers), in the order the
// system lists its drives.
QStringList removableDriveRoots();

} // namespace platform
} // namespace vorlin
