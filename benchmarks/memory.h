#pragma once

#include <benchmark/benchmark.h>

namespace vxgraphics3d {

/// The peak memory use in a section of a benchmark, beyond what was in use when it began.
class MemoryWatch {
public:
    /// Returns freed memory to the system, and starts measuring.
    MemoryWatch();

    /// Reports the peak use since then, in bytes: next to the bytes of the remaining buffers, and of those and the
    /// temporary arrays.
    void report(benchmark::State& state, double buffers, double expected) const;

private:
    double m_before;
};

} // namespace vxgraphics3d
