// Counts what the benchmarks allocate: the global operators are replaced for the whole program.
#include "benchmarks/allocations.h"

#include <cstdlib>
#include <new>

namespace {

thread_local std::size_t allocationsOfThread = 0;

} // namespace

std::size_t vxgraphics3d::numAllocations()
{
    return allocationsOfThread;
}

void* operator new(std::size_t size)
{
    ++allocationsOfThread;
    if (void* memory = std::malloc(size > 0 ? size : 1)) {
        return memory;
    }
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
