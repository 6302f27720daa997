#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/CameraSystem.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace {

/// The directory this library was loaded from, links resolved.
std::string libraryDirectory()
{
    static const char marker = 0;
    Dl_info info{};
    if (dladdr(&marker, &info) == 0 || !info.dli_fname)
        return {};
    std::error_code error;
    const auto file = std::filesystem::canonical(info.dli_fname, error);
    return error ? std::string() : file.parent_path().string();
}

/// Ends the system with the process. A forked child must not: it has the object, but none of its threads.
class EndAtExit
{
public:
    explicit EndAtExit(CameraSystem &system) : m_system(system) { }
    ~EndAtExit()
    {
        if (getpid() == m_process)
            m_system.Shutdown();
    }
    EndAtExit(const EndAtExit &) = delete;
    EndAtExit &operator=(const EndAtExit &) = delete;

private:
    CameraSystem &m_system;
    pid_t m_process = getpid();
};

} // namespace

CvxCPP::CvxSystem &CvxCPP::CvxSystem::GetInstance()
{
    // Never destroyed, since other threads may still call it while the process exits.
    static auto *const system = new CameraSystem(SystemOptions::forLibraryDirectory(libraryDirectory()));
    static const EndAtExit end(*system);
    return *system;
}
