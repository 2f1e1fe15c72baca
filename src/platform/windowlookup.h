#pragma once

class QString;

namespace vorlin {
namespace platform {

// Top-level windows of any process, found by their exact title. Where the window system
// cannot be searched (Linux without X11: offscreen, Wayland) nothing is found.
bool isTopLevelWindowVisible(const QString& title);
// Shows the window in its normal state and brings it to the foreground; false if none.
bool raiseTopLevelWindow(const QString& title);

} // namespace platform
} // namespace vorlin
