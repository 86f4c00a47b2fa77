#include "graphics3d/foundation/errorlog.h"

#include <algorithm>
#include <array>
#include <cstdarg>
#include <fcntl.h>
#include <locale.h>
#include <new>
#include <stdio_ext.h>
#include <unistd.h>

namespace vxgraphics3d {

namespace {

constexpr std::array<const char*, 6> c_levelNames = {"none", "error", "warning", "info", "jni_info", "debug"};
constexpr const char* c_moduleName = "graphics";
constexpr int c_numModules = 1;

const char* levelName(ErrorLog::Level level)
{
    const auto index = static_cast<std::size_t>(level);
    return index < c_levelNames.size() ? c_levelNames[index] : "unknown";
}

bool isModule(ErrorLog::ModuleID module)
{
    const int id = static_cast<int>(module);
    return id >= 0 && id < c_numModules;
}

/// During its lifetime, this thread formats numbers as in the "C" locale. A virtual machine sets the process's locale
/// from its environment, and a decimal comma in a log line would break programs that read it.
class NumberLocale {
public:
    NumberLocale() : m_previous(uselocale(cLocale())) {}
    ~NumberLocale() { uselocale(m_previous); }
    NumberLocale(const NumberLocale&) = delete;
    NumberLocale& operator=(const NumberLocale&) = delete;

private:
    static locale_t cLocale()
    {
        static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
        return locale;
    }

    locale_t m_previous;
};

constexpr const char* c_nowhere = "/dev/null";
constexpr int c_forWriting = O_WRONLY | O_CLOEXEC;

/// The one stream for all files that the log ever writes, created for the first of them. It is never closed, so a
/// thread that logs while another changes the file always has a stream. Null if it could not be created.
std::FILE* fileStream()
{
    static std::FILE* const stream = std::fopen(c_nowhere, "we");
    return stream;
}

/// Redirects a stream to another file. Buffered text is written to the old file first, or is lost if that file cannot
/// be written. The stream's own lock keeps the lines of other threads whole.
/// @return whether the file was opened; if not, the stream writes nowhere
bool redirect(std::FILE* stream, const char* path, int flags)
{
    flockfile(stream);
    fflush_unlocked(stream);
    __fpurge(stream);
    clearerr_unlocked(stream);
    const int file = open(path, flags, 0666);
    const int descriptor = file >= 0 ? file : open(c_nowhere, c_forWriting);
    if (descriptor >= 0) {
        dup3(descriptor, fileno_unlocked(stream), O_CLOEXEC);
        close(descriptor);
    }
    funlockfile(stream);
    return file >= 0;
}

__attribute__((format(printf, 2, 0))) void append(std::string& line, const char* format, va_list args)
{
    va_list again;
    va_copy(again, args);
    const int length = std::vsnprintf(nullptr, 0, format, args);
    const std::size_t end = line.size();
    // The terminating 0 overwrites the string's own.
    line.resize(end + static_cast<std::size_t>(std::max(length, 0)));
    std::vsnprintf(line.data() + end, line.size() - end + 1, format, again);
    va_end(again);
}

__attribute__((format(printf, 2, 3))) void append(std::string& line, const char* format, ...)
{
    va_list args;
    va_start(args, format);
    append(line, format, args);
    va_end(args);
}

} // namespace

boost::shared_ptr<ErrorLog> ErrorLog::m_instance;
std::atomic<ErrorLog::Level> ErrorLog::m_heardLevel = Level::none;

ErrorLog* ErrorLog::getInstance()
{
    static ErrorLog* const instance = [] {
        // The pointer is destroyed when the process ends, but the log is not: the C library flushes its stream.
        m_instance.reset(new ErrorLog, [](ErrorLog*) {});
        return m_instance.get();
    }();
    return instance;
}

void ErrorLog::setActive(bool on)
{
    m_activeLevel = on && m_target != nullptr ? m_reportLevel.load() : Level::none;
    updateHeardLevel();
}

void ErrorLog::updateHeardLevel()
{
    const bool isReported = (m_moduleMask >> static_cast<int>(ModuleID::graphics) & 1u) != 0;
    m_heardLevel = isReported ? m_activeLevel.load() : Level::none;
}

void ErrorLog::setReportLevel(Level level)
{
    m_reportLevel = level;
    setActive(true);
}

void ErrorLog::activateModuleReporting(ModuleID module)
{
    if (isModule(module)) {
        m_moduleMask |= 1u << static_cast<int>(module);
        updateHeardLevel();
    }
}

void ErrorLog::deactivateModuleReporting(ModuleID module)
{
    if (isModule(module)) {
        m_moduleMask &= ~(1u << static_cast<int>(module));
        updateHeardLevel();
    }
}

void ErrorLog::activateAllModuleReporting()
{
    m_moduleMask = ~0u;
    updateHeardLevel();
}

void ErrorLog::deactivateAllModuleReporting()
{
    m_moduleMask = 0;
    updateHeardLevel();
}

/// Closes the file that the log currently writes, if any; its stream stays.
void ErrorLog::closeOwnedTarget()
{
    if (m_ownsTarget) {
        redirect(fileStream(), c_nowhere, c_forWriting);
    }
}

void ErrorLog::setTarget(std::FILE* target, bool owned)
{
    m_target = target;
    m_ownsTarget = owned;
    setActive(true);
}

bool ErrorLog::setTargetToFile(const std::string& path)
{
    std::FILE* const stream = fileStream();
    const bool isOpen = stream != nullptr && redirect(stream, path.c_str(), c_forWriting | O_CREAT | O_TRUNC);
    setTarget(isOpen ? stream : nullptr, isOpen);
    return true;
}

bool ErrorLog::setTargetToStdOut()
{
    closeOwnedTarget();
    setTarget(stdout, false);
    return true;
}

bool ErrorLog::setTargetToStdErr()
{
    closeOwnedTarget();
    setTarget(stderr, false);
    return true;
}

void ErrorLog::log(Level level, ModuleID module, int subId, const char* file, int line, const char* format, ...)
{
    // A message of level none passes even when the log is silent, and then there may be no target.
    std::FILE* const target = m_target;
    if (!passes(level, module) || target == nullptr) {
        return;
    }
    try {
        const NumberLocale numbers;
        const int moduleId = static_cast<int>(module);
        std::string text;
        if (moduleId <= 0) {
            append(text, "%s\t%s:%d\t", levelName(level), c_moduleName, subId);
        } else {
            append(text, "%s\tmodule(%d):%d\t", levelName(level), moduleId, subId);
        }
        va_list args;
        va_start(args, format);
        append(text, format, args);
        va_end(args);
        append(text, "\t%s;%d\n", file, line);
        // One call, so that the lines of several threads do not mix.
        std::fwrite(text.data(), 1, text.size(), target);
    } catch (const std::bad_alloc&) {
        // Destructors log, so a line for which there is no memory is dropped.
    }
    if (m_flushEachMessage) {
        std::fflush(target);
    }
}

} // namespace vxgraphics3d
