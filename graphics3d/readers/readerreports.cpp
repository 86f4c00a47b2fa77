#include "graphics3d/readers/readerreports.h"

#include <cstdarg>
#include <cstddef>
#include <cstdio>
#include <utility>

namespace vxgraphics3d {

namespace {

thread_local ReaderError* t_kept = nullptr;

/// @param args consumed by the call
[[gnu::format(printf, 1, 0)]] std::string textOf(const char* format, va_list args)
{
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    std::string text(static_cast<std::size_t>(length), '\0');
    std::vsnprintf(text.data(), text.size() + 1, format, again);
    va_end(again);
    return text;
}

} // namespace

ReaderErrorKeeper::ReaderErrorKeeper(ReaderError& error) : m_outer(std::exchange(t_kept, &error)) {}

ReaderErrorKeeper::~ReaderErrorKeeper()
{
    t_kept = m_outer;
}

void detail::passOn(Echo echo, int row, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    if (echo != Echo::none) {
        va_list copy;
        va_copy(copy, args);
        std::vfprintf(stderr, format, copy);
        va_end(copy);
        std::fputs(echo == Echo::line ? "\n" : "", stderr);
        std::fflush(stderr);
    }
    if (t_kept != nullptr) {
        *t_kept = {textOf(format, args), row};
    }
    va_end(args);
}

} // namespace vxgraphics3d
