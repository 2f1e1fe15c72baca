#pragma once

class QWidget;

namespace vorlin {
namespace platform {

// Toggles the window between the always-on-top band and the normal band, keeping its
// position and size, and shows it.
void toggleStaysOnTop(QWidget* window);

} // namespace platform
} // namespace vorlin
