#include "tests/hostile/OutputAside.h"

#include <array>
#include <cstdio>
#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

OutputAside::OutputAside()
    : m_output(fcntl(STDOUT_FILENO, F_DUPFD_CLOEXEC, 0)),
      m_error(fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0)),
      m_kept(memfd_create("errors", MFD_CLOEXEC))
{
    std::fflush(stdout);
    const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
    dup2(nowhere, STDOUT_FILENO);
    close(nowhere);
    fcntl(m_kept, F_SETFL, O_APPEND); // Several processes write, each at the end.
    dup2(m_kept, STDERR_FILENO);
}

OutputAside::~OutputAside()
{
    std::fflush(stdout);
    dup2(m_output, STDOUT_FILENO);
    dup2(m_error, STDERR_FILENO);
    close(m_output);
    close(m_error);
    close(m_kept);
}

std::string OutputAside::errors() const
{
    std::string text;
    std::array<char, 4096> block;
    for (ssize_t count = 0;
         (count = pread(m_kept, block.data(), block.size(), static_cast<off_t>(text.size()))) > 0;)
        text.append(block.data(), static_cast<std::size_t>(count));
    return text;
}
