#pragma once

#include "graphics3d/foundation/errorlog.h"
#include "tests/support/temporaryfile.h"

#include <string>
#include <vector>

namespace vxgraphics3d {

/// During its lifetime, the log writes at a level into a separate file; afterwards the log is silent, on standard
/// error.
class CapturedLog {
public:
    explicit CapturedLog(ErrorLog::Level level);
    ~CapturedLog();
    CapturedLog(const CapturedLog&) = delete;
    CapturedLog& operator=(const CapturedLog&) = delete;

    /// All that has been written so far.
    std::string text() const { return m_file.read(); }
    /// The message field of each line written so far.
    std::vector<std::string> messages() const { return messagesIn(text()); }
    /// The message field of each line of a text that a log has written.
    static std::vector<std::string> messagesIn(const std::string& text);

private:
    TemporaryFile m_file;
};

} // namespace vxgraphics3d
