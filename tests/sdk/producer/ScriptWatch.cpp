#include "tests/sdk/producer/ScriptWatch.h"

#include "tests/sdk/producer/Script.h"

#include <chrono>
#include <sys/eventfd.h>
#include <sys/stat.h>
#include <thread>
#include <tuple>
#include <utility>

namespace {

constexpr auto checkInterval = std::chrono::milliseconds(2);
constexpr unsigned int manyReads = 1'000'000'000; // A semaphore stays readable for this number of reads.

/// Returns values that differ after the script was replaced or written.
auto scriptVersion()
{
    struct stat status
    { };
    stat(scriptPath().c_str(), &status);
    return std::tuple(status.st_ino, status.st_size, status.st_mtim.tv_sec, status.st_mtim.tv_nsec);
}

} // namespace

int watchScript(bool isFlooding)
{
    const int changed = isFlooding ? eventfd(manyReads, EFD_CLOEXEC | EFD_NONBLOCK | EFD_SEMAPHORE)
                                   : eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::thread([changed, known = scriptVersion()]() mutable {
        for (;; std::this_thread::sleep_for(checkInterval)) {
            const auto current = scriptVersion();
            if (std::exchange(known, current) != current)
                eventfd_write(changed, 1);
        }
    }).detach();
    return changed;
}
