#include "tests/support/capturederror.h"

#include <cstdio>
#include <fcntl.h>
#include <unistd.h>

namespace vxgraphics3d {

CapturedError::CapturedError() : m_original(dup(STDERR_FILENO))
{
    std::fflush(stderr);
    const int file = open(m_file.path().c_str(), O_WRONLY | O_APPEND);
    dup2(file, STDERR_FILENO);
    close(file);
}

CapturedError::~CapturedError()
{
    std::fflush(stderr);
    dup2(m_original, STDERR_FILENO);
    close(m_original);
}

std::string CapturedError::take()
{
    const std::string text = m_file.read();
    m_file.write({});
    return text;
}

} // namespace vxgraphics3d
