#pragma once

#include <new>

namespace vxgraphics3d {

/// During its lifetime, one allocation by `new` throws: the n-th of this thread, counted from 0. The program's
/// operators are replaced for this, and forward all other allocations.
class FailingAllocation {
public:
    explicit FailingAllocation(long n);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

/// Repeats a call with a failure of its first allocation, its second, and so on, until it succeeds.
/// @param afterFailure is called after each `std::bad_alloc` that the call throws
/// @return the number of failures
template <class Call, class AfterFailure>
long failEachAllocation(Call call, AfterFailure afterFailure)
{
    for (long n = 0;; ++n) {
        try {
            const FailingAllocation failing(n);
            call();
            return n;
        } catch (const std::bad_alloc&) {
            afterFailure();
        }
    }
}

} // namespace vxgraphics3d
