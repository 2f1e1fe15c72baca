#pragma once

#include <QtCore/QtGlobal>

namespace vorlin {
namespace platform {

// Ends the own process at once: no destructors, no atexit handlers, no flushing.
// Windows reports exit code 0; elsewhere the process dies of SIGKILL.
[[noreturn]] void killCurrentProcess();

// Monotonic counter and its ticks per second, for measuring intervals.
quint64 performanceCounter();
quint64 performanceFrequency();

} // namespace platform
} // namespace vorlin
