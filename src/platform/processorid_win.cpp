#include "processorid.h"

#include <QtCore/qsystemdetection.h>

#ifdef Q_OS_WIN

#include <intrin.h>

namespace vorlin {
namespace platform {

void cpuidex(unsigned int registers[4], unsigned int leaf, unsigned int subLeaf)
{
    int values[4] = {};
    __cpuidex(values, int(leaf), int(subLeaf));
    for (int i = 0; i < 4; ++i)
        registers[i] = static_cast<unsigned int>(values[i]);
}

} // namespace platform
} // namespace vorlin

#endif // Q_OS_WIN
