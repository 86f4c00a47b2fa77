#pragma once

#include "base/logtext.h"
#include "graphics3d/foundation/errorlog.h"
#include "graphics3d/readers/readererror.h"

#include <type_traits>

namespace vxgraphics3d {

/// Stores the last error that readers report on this thread during its lifetime. If keepers are nested, the innermost
/// one stores the errors.
class ReaderErrorKeeper {
public:
    explicit ReaderErrorKeeper(ReaderError& error);
    ~ReaderErrorKeeper();
    ReaderErrorKeeper(const ReaderErrorKeeper&) = delete;
    ReaderErrorKeeper& operator=(const ReaderErrorKeeper&) = delete;

private:
    ReaderError* m_outer;
};

namespace detail {

enum class Echo { none, text, line };

/// Passes a message to the thread's keeper, if there is one, and writes it to standard error, which it flushes.
void passOn(Echo echo, int row, const char* format, ...) __attribute__((format(printf, 3, 4)));

template <class... Args>
void report(Echo echo, int row, const vxbase::LogText<Args...>& text, Args... args)
{
    logError<Args...>(text, args...);
// The text was checked against its arguments at compile time.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    passOn(echo, row, text.text, vxbase::printable(args)...);
#pragma GCC diagnostic pop
}

} // namespace detail

// Each of these reports a fault of a file: as an error in the log and to the `ReaderErrorKeeper` of the thread. File
// and line in the log are the caller's. The row is that of a `ReaderError`.

/// Writes the same text, without line end, to standard error as well.
template <class... Args>
void reportError(int row, vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::report<Args...>(detail::Echo::text, row, text, args...);
}

/// The same with a line end on standard error.
template <class... Args>
void reportErrorLine(int row, vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::report<Args...>(detail::Echo::line, row, text, args...);
}

/// Writes nothing to standard error.
template <class... Args>
void reportQuietly(int row, vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::report<Args...>(detail::Echo::none, row, text, args...);
}

/// Passes a reason to the `ReaderErrorKeeper` of the thread alone, for faults that are not logged.
template <class... Args>
void keepReason(int row, vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    detail::passOn(detail::Echo::none, row, text.text, vxbase::printable(args)...);
#pragma GCC diagnostic pop
}

} // namespace vxgraphics3d
