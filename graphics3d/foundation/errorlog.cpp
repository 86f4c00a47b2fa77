#include "graphics3d/foundation/errorlog.h"

#include <array>
#include <cstdarg>
#include <locale.h>

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

/// While it lives, this thread writes numbers as in the "C" locale. A virtual machine sets the process's locale from
/// its environment, and a comma in a log line would break every reader of it.
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

} // namespace

boost::shared_ptr<ErrorLog> ErrorLog::m_instance;
ErrorLog::Level ErrorLog::m_heardLevel = Level::none;

ErrorLog* ErrorLog::makeInstance()
{
    m_instance.reset(new ErrorLog);
    return m_instance.get();
}

ErrorLog::~ErrorLog()
{
    m_heardLevel = Level::none;
    if (m_ownsTarget) {
        std::fclose(m_target);
    }
}

void ErrorLog::setActive(bool on)
{
    m_activeLevel = on && m_target != nullptr ? m_reportLevel : Level::none;
    updateHeardLevel();
}

void ErrorLog::updateHeardLevel()
{
    const bool isReported = (m_moduleMask >> static_cast<int>(ModuleID::graphics) & 1u) != 0;
    m_heardLevel = isReported ? m_activeLevel : Level::none;
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

void ErrorLog::setTarget(std::FILE* target, bool owned)
{
    m_target = target;
    m_ownsTarget = owned;
    setActive(true);
}

bool ErrorLog::setTargetToFile(const std::string& path)
{
    if (m_ownsTarget) {
        std::fclose(m_target);
    }
    std::FILE* file = std::fopen(path.c_str(), "w");
    setTarget(file, file != nullptr);
    return true;
}

bool ErrorLog::setTargetToStdOut()
{
    if (m_ownsTarget) {
        std::fclose(m_target);
    }
    setTarget(stdout, false);
    return true;
}

bool ErrorLog::setTargetToStdErr()
{
    if (m_ownsTarget) {
        std::fclose(m_target);
    }
    setTarget(stderr, false);
    return true;
}

void ErrorLog::log(Level level, ModuleID module, int subId, const char* file, int line, const char* format, ...)
{
    // A message of level none passes a silent log, which may have no target.
    if (!passes(level, module) || m_target == nullptr) {
        return;
    }
    const NumberLocale numbers;
    const int moduleId = static_cast<int>(module);
    if (moduleId <= 0) {
        std::fprintf(m_target, "%s\t%s:%d\t", levelName(level), c_moduleName, subId);
    } else {
        std::fprintf(m_target, "%s\tmodule(%d):%d\t", levelName(level), moduleId, subId);
    }
    va_list args;
    va_start(args, format);
    std::vfprintf(m_target, format, args);
    va_end(args);
    std::fprintf(m_target, "\t%s;%d\n", file, line);
    if (m_flushEachMessage) {
        std::fflush(m_target);
    }
}

} // namespace vxgraphics3d
