#include "tests/aravis/FakeCamera.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

FakeCamera::FakeCamera(const std::string &serial, const std::string &address) : m_process(fork())
{
    if (m_process < 0)
        throw std::system_error(errno, std::generic_category(), "fork");
    if (m_process > 0)
        return;
    prctl(PR_SET_PDEATHSIG, SIGKILL); // A test that crashes must leave no camera behind.
    dup2(open("/dev/null", O_WRONLY | O_CLOEXEC), STDOUT_FILENO);
    execl(FAKE_CAMERA_PROGRAM, FAKE_CAMERA_PROGRAM, "--interface", address.c_str(), "--serial",
        serial.c_str(), static_cast<char *>(nullptr));
    _exit(127);
}

void FakeCamera::pause()
{
    kill(m_process, SIGSTOP);
}

void FakeCamera::resume()
{
    kill(m_process, SIGCONT);
}

FakeCamera::~FakeCamera()
{
    kill(m_process, SIGKILL);
    while (waitpid(m_process, nullptr, 0) < 0 && errno == EINTR) { }
}
