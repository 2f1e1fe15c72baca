#pragma once

class QString;

namespace vorlin {
namespace platform {

// A system-wide named mutex held by one process at a time: a Windows mutex object, an
// exclusive flock on a file in the runtime folder elsewhere. The kernel releases it when
// the holding process dies.
struct NamedMutex;

// Takes the mutex. When another holder exists (this process included), returns null and
// sets *heldElsewhere; otherwise returns the handle, or null if it could not be created.
NamedMutex* acquireNamedMutex(const QString& name, bool* heldElsewhere);
// Releases and closes a handle; null is ignored.
void releaseNamedMutex(NamedMutex* mutex);

} // namespace platform
} // namespace vorlin
