#include "CvxCPP/CvxCPP.h"
#include "sdk/cvxcpp/CameraSystem.h"

#include <dlfcn.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace {

/// Returns the directory of the library file, with symbolic links resolved.
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

/// Shuts the system down when the process exits, but not in a forked child, which has no copy of the
/// system's threads.
class ShutdownAtExit
{
public:
    explicit ShutdownAtExit(CameraSystem &system) : m_system(system) { }
    ~ShutdownAtExit()
    {
        if (getpid() == m_process)
            m_system.Shutdown();
    }
    ShutdownAtExit(const ShutdownAtExit &) = delete;
    ShutdownAtExit &operator=(const ShutdownAtExit &) = delete;

private:
    CameraSystem &m_system;
    pid_t m_process = getpid();
};

} // namespace

CvxCPP::CvxSystem &CvxCPP::CvxSystem::GetInstance()
{
    // The system is never destroyed, because other threads may still call it while the process exits.
    static auto *const system = new CameraSystem(SystemOptions::forLibraryDirectory(libraryDirectory()));
    static const ShutdownAtExit shutdownAtExit(*system);
    return *system;
}
