#include "processorid.h"

#include <QtCore/qsystemdetection.h>

#ifndef Q_OS_WIN

#if defined(__i386__) || defined(__x86_64__)
#include <cpuid.h>
#endif

namespace vorlin {
namespace platform {

void cpuidex(unsigned int registers[4], unsigned int leaf, unsigned int subLeaf)
{
    registers[0] = registers[1] = registers[2] = registers[3] = 0;
#if defined(__i386__) || defined(__x86_64__)
    __get_cpuid_count(leaf, subLeaf, &registers[0], &registers[1], &registers[2], &registers[3]);
#else
    (void)leaf;
    (void)subLeaf;
#endif
}

} // namespace platform
} // namespace vorlin

#endif // !Q_OS_WIN
