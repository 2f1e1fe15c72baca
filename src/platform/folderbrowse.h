#pragma once

#include <QtCore/QString>
#include <QtGui/qwindowdefs.h>

namespace vorlin {
namespace platform {

// The platform's folder-browse dialog with a title and an owner window (a native handle,
// 0 for none); an empty string when cancelled.
QString browseForFolder(const QString& title, quintptr ownerWindow);

} // namespace platform
} // namespace vorlin
