#include "benchmarks/memory.h"

#include <fstream>
#include <malloc.h>
#include <string>

namespace vxgraphics3d {
namespace {

/// A memory figure of the process in bytes, such as "VmHWM:", its peak memory use; 0 if the system does not report it.
double processMemory(const std::string& figure)
{
    std::ifstream status("/proc/self/status");
    for (std::string line; std::getline(status, line);) {
        if (line.rfind(figure, 0) == 0) {
            return 1024.0 * std::stod(line.substr(figure.size()));
        }
    }
    return 0.0;
}

} // namespace

MemoryWatch::MemoryWatch()
{
    malloc_trim(0);
    std::ofstream("/proc/self/clear_refs") << 5;
    m_before = processMemory("VmRSS:");
}

void MemoryWatch::report(benchmark::State& state, double buffers, double expected) const
{
    state.counters["peak"] = processMemory("VmHWM:") - m_before;
    state.counters["buffers"] = buffers;
    state.counters["expected"] = expected;
}

} // namespace vxgraphics3d
