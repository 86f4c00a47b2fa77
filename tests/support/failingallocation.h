#pragma once

#include <new>

namespace vxgraphics3d {

/// While it lives, one allocation by `new` throws: the n-th that this thread makes, counted from 0. The program's
/// operators are replaced for this, and merely pass on all others.
class FailingAllocation {
public:
    explicit FailingAllocation(long n);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};

/// Makes a call again and again, with a failure of its first allocation, its second, and so on, until it has no more.
/// @param afterFailure is called after each `std::bad_alloc` that came out
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
