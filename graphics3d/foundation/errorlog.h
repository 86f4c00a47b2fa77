#pragma once

#include "base/export.h"
#include "base/logtext.h"

#include <boost/shared_ptr.hpp>

#include <atomic>
#include <cstdio>
#include <string>
#include <type_traits>

namespace vxgraphics3d {

/// The library's only diagnostic output: one line per message, silent until a level is set.
///
/// A line consists of the level's name, the module field, the message, and source file and line, with tabs between the
/// fields: `info <tab> graphics:0 <tab> Creating ... <tab> scenegraphgroup.cpp;12`. Reals are written with a decimal
/// point, independent of the locale of the process.
///
/// Any thread may log, even while another thread changes the target or the level: a line is written whole, to one
/// target. The streams exist as long as the process; another file only replaces the descriptor of its stream. Two
/// threads must not change the target at the same time. The log is never destroyed, so threads that still run while the
/// process ends may log.
class VX_API ErrorLog {
public:
    /// Severity of a message; a message passes if its level is not above the current level.
    enum class Level : int { none = 0, error = 1, warning = 2, info = 3, jniInfo = 4, debug = 5 };

    /// The source of a message. The library is one module, with one bit in the mask.
    enum class ModuleID : int { graphics = 0 };

    /// The process-wide log, created by the first call.
    static ErrorLog* getInstance();

    ErrorLog(const ErrorLog&) = delete;
    ErrorLog& operator=(const ErrorLog&) = delete;

    /// Switches the log off, or on at the last requested level. Without a target it stays off.
    void setActive(bool on);
    bool isActive() const { return m_activeLevel > Level::none; }

    /// Stores the requested level and switches the log on at it.
    void setReportLevel(Level level);
    /// The current level, not the requested one: `Level::none` while the log is switched off.
    Level getReportLevel() const { return m_activeLevel; }

    /// Enables the messages of a module. Unknown modules are ignored.
    void activateModuleReporting(ModuleID module);
    /// Suppresses the messages of a module. Unknown modules are ignored.
    void deactivateModuleReporting(ModuleID module);
    void activateAllModuleReporting();
    void deactivateAllModuleReporting();

    /// Writes to a file from now on, truncating it, and switches the log on. The previous file is flushed and closed.
    /// If the file cannot be opened, the log has no target and is switched off.
    /// @return true, even if the file cannot be opened
    bool setTargetToFile(const std::string& path);
    bool setTargetToStdOut();
    bool setTargetToStdErr();

    /// Whether the stream is flushed after every line.
    void flushAfterEachMessage(bool flush) { m_flushEachMessage = flush; }

    /// Whether a message of this level and module would be written.
    bool passes(Level level, ModuleID module) const
    {
        return level <= m_activeLevel.load(std::memory_order_relaxed) &&
               (m_moduleMask.load(std::memory_order_relaxed) >> static_cast<int>(module) & 1u) != 0;
    }

    /// Whether the library's own messages of this level would be written: the only cost of a silent message.
    static bool isHeard(Level level) { return level <= m_heardLevel.load(std::memory_order_relaxed); }

    /// Writes one line if level and module pass. The format follows `printf`.
    void log(Level level, ModuleID module, int subId, const char* file, int line, const char* format, ...)
        __attribute__((format(printf, 7, 8)));

private:
    ErrorLog() = default;

    void closeOwnedTarget();
    void setTarget(std::FILE* target, bool owned);
    void updateHeardLevel();

    static boost::shared_ptr<ErrorLog> m_instance;
    static std::atomic<Level> m_heardLevel; ///< the current level, or none while the library's module is suppressed

    std::atomic<Level> m_reportLevel = Level::none;
    std::atomic<Level> m_activeLevel = Level::none;
    std::atomic<unsigned> m_moduleMask = 1;
    std::atomic<bool> m_ownsTarget = false;
    std::atomic<std::FILE*> m_target = stderr; ///< a stream that is never closed, or null
    std::atomic<bool> m_flushEachMessage = false;
};

/// Sub-id of the lines that the model's own files write.
inline constexpr int c_coreLogSubId = 0;
/// Sub-id of the lines that the natives write on entry.
inline constexpr int c_nativeLogSubId = 8;

namespace detail {

/// Out of line and with few arguments, so that a message that is not written costs its caller only one comparison.
template <ErrorLog::Level level, int subId, class... Args>
[[gnu::cold, gnu::noinline]] void writeLine(const char* file, int line, const char* format, Args... args)
{
// The text was checked against its arguments at compile time, which is stricter than this warning.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wformat-security"
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    ErrorLog::getInstance()->log(level, ErrorLog::ModuleID::graphics, subId, file, line, format,
                                 vxbase::printable(args)...);
#pragma GCC diagnostic pop
}

template <ErrorLog::Level level, int subId, class... Args>
void logLine(const vxbase::LogText<Args...>& text, Args... args)
{
    if (ErrorLog::isHeard(level)) [[unlikely]] {
        writeLine<level, subId>(text.file, text.line, text.text, args...);
    }
}

} // namespace detail

/// Writes a life-cycle or progress message: `logInfo("Adding child %d", id)`. File and line are the caller's.
template <class... Args>
void logInfo(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::logLine<ErrorLog::Level::info, c_coreLogSubId, Args...>(text, args...);
}

/// Writes a message about an unusual situation that was handled.
template <class... Args>
void logWarning(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::logLine<ErrorLog::Level::warning, c_coreLogSubId, Args...>(text, args...);
}

/// Writes a message about invalid input that makes the library skip a step.
template <class... Args>
void logError(vxbase::LogText<std::type_identity_t<Args>...> text, Args... args)
{
    detail::logLine<ErrorLog::Level::error, c_coreLogSubId, Args...>(text, args...);
}

} // namespace vxgraphics3d
