#include "graphics3d/readers/readererror.h"

#include <cstdarg>
#include <cstdio>

namespace vxgraphics3d::detail {

void printError(const char* ending, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    std::vfprintf(stderr, format, args);
    va_end(args);
    std::fputs(ending, stderr);
    std::fflush(stderr);
}

} // namespace vxgraphics3d::detail
