#include "tests/support/capturedlog.h"

#include <sstream>

namespace vxgraphics3d {

CapturedLog::CapturedLog(ErrorLog::Level level)
{
    ErrorLog* log = ErrorLog::getInstance();
    log->setTargetToFile(m_file.path());
    log->flushAfterEachMessage(true);
    log->setReportLevel(level);
}

CapturedLog::~CapturedLog()
{
    ErrorLog* log = ErrorLog::getInstance();
    log->activateAllModuleReporting();
    log->setReportLevel(ErrorLog::Level::none);
    log->flushAfterEachMessage(false);
    log->setTargetToStdErr();
}

std::vector<std::string> CapturedLog::messagesIn(const std::string& text)
{
    std::vector<std::string> result;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
        const std::size_t begin = line.find('\t', line.find('\t') + 1) + 1;
        result.push_back(line.substr(begin, line.rfind('\t') - begin));
    }
    return result;
}

} // namespace vxgraphics3d
