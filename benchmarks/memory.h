#pragma once

#include <benchmark/benchmark.h>

namespace vxgraphics3d {

/// The highest use of memory in a stretch of a benchmark, beyond what was in use when it began.
class MemoryWatch {
public:
    /// Gives back what was freed before, and starts from here.
    MemoryWatch();

    /// Reports the highest use since then, in bytes: beside the bytes of the buffers that stay, and of those and the
    /// temporary arrays.
    void report(benchmark::State& state, double buffers, double told) const;

private:
    double m_before;
};

} // namespace vxgraphics3d
