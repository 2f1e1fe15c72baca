#pragma once

// Percentiles of a sample, shared by the benchmarks.
#include <algorithm>
#include <vector>

inline double percentile(std::vector<double> values, double fraction)
{
    if (values.empty())
        return 0;
    std::sort(values.begin(), values.end());
    const size_t index = std::min(values.size() - 1, size_t(fraction * double(values.size() - 1) + 0.5));
    return values[index];
}
