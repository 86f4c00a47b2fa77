#pragma once

#include "graphics3d/foundation/errorlog.h"

#include <string>
#include <vector>

namespace vxgraphics3d {

/// While it lives, the log writes at a level into a file of its own; afterwards the log is silent on standard error.
class CapturedLog {
public:
    explicit CapturedLog(ErrorLog::Level level);
    ~CapturedLog();
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    /// All that has been written so far.
    std::string text() const;
    /// The message field of each line written so far.
    std::vector<std::string> messages() const;

private:
    std::string m_path;
};

} // namespace vxgraphics3d
