#pragma once

namespace vorlin {
namespace platform {

// Runs the processor identification instruction; fills EAX, EBX, ECX, EDX in that order.
// Processors without it (non-x86) give four zeros.
void cpuidex(unsigned int registers[4], unsigned int leaf, unsigned int subLeaf);

} // namespace platform
} // namespace vorlin
