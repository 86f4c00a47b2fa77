#pragma once

#include "base/logtext.h"
#include "graphics3d/foundation/errorlog.h"

#include <type_traits>

namespace vxgraphics3d {

namespace detail {

/// Writes a message and an ending to standard error and flushes it.
void printError(const char* ending, const char* format, ...) __attribute__((format(printf, 2, 3)));

template <class... Args>
void reportWithEnding(const char* ending, const vxbase::LogText<Args...>& text, Args... args)
{
    logError<Args...>(text, args...);
// The text was checked against its arguments at compile time.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    printError(ending, text.text, vxbase::printable(args)...);
#pragma GCC diagnostic pop
}

} // namespace detail

/// Reports a file that cannot be read: an error in the log, and the same text, without line end, on standard
/// error. File and line in the log are the caller's.
template <class... Args>
void reportError(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::reportWithEnding<Args...>("", text, args...);
}

/// The same with a line end on standard error.
template <class... Args>
void reportErrorLine(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::reportWithEnding<Args...>("\n", text, args...);
}

} // namespace vxgraphics3d
