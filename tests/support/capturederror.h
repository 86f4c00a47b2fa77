#pragma once

#include "tests/support/temporaryfile.h"

#include <string>

namespace vxgraphics3d {

/// During its lifetime, everything that the process writes to standard error goes into a separate file.
class CapturedError {
public:
    CapturedError();
    ~CapturedError();
    CapturedError(const CapturedError&) = delete;
    CapturedError& operator=(const CapturedError&) = delete;

    /// Everything written since the last call.
    std::string take();

private:
    int m_original;
    TemporaryFile m_file;
};

} // namespace vxgraphics3d
