#pragma once

#include "tests/support/temporaryfile.h"

#include <string>

namespace vxgraphics3d {

/// While it lives, what the process writes on standard error goes into a file of its own.
class CapturedError {
public:
    CapturedError();
    ~CapturedError();
    CapturedError(const CapturedError&) = delete;
    CapturedError& operator=(const CapturedError&) = delete;

    /// What was written since the last call.
    std::string take();

private:
    int m_original;
    TemporaryFile m_file;
};

} // namespace vxgraphics3d
