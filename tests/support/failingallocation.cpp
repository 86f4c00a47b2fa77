#include "tests/support/failingallocation.h"

#include <cstddef>
#include <dlfcn.h>

namespace {

thread_local long allocationsBeforeFailure = -1;

/// Allocates through the operator that this program replaces, so that sanitizers still know which one it was.
template <const char* symbol>
void* allocate(std::size_t size)
{
    static const auto original = reinterpret_cast<void* (*)(std::size_t)>(dlsym(RTLD_NEXT, symbol));
    if (allocationsBeforeFailure >= 0 && allocationsBeforeFailure-- == 0) {
        throw std::bad_alloc();
    }
    return original(size);
}

constexpr char c_new[] = "_Znwm";
constexpr char c_newArray[] = "_Znam";

} // namespace

vxgraphics3d::FailingAllocation::FailingAllocation(long n)
{
    allocationsBeforeFailure = n;
}

vxgraphics3d::FailingAllocation::~FailingAllocation()
{
    allocationsBeforeFailure = -1;
}

// Releasing memory needs no replacement.
// NOLINTBEGIN(misc-new-delete-overloads)
void* operator new(std::size_t size)
{
    return allocate<c_new>(size);
}

void* operator new[](std::size_t size)
{
    return allocate<c_newArray>(size);
}
// NOLINTEND(misc-new-delete-overloads)
