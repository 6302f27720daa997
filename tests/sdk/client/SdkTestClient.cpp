// This program uses the library. Each argument is one step:
//   start, stop, list     calls Startup(), Shutdown() or GetCameras()
//   search                waits until four cameras are listed
//   fork                  forks a child that exits at once, and waits for it
//   wait                  waits until standard input is closed
//   closedStandardError   makes standard error a pipe whose other end is closed
//   fullStandardError     makes standard error a pipe that is full

#include "CvxCPP/CvxCPP.h"
#include "tests/sdk/support/CameraText.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <memory>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

using namespace CvxCPP;

namespace {

bool isForkedChild = false;

void list(CvxSystem &system)
{
    unsigned count = 0;
    const CvxError error = system.GetCameras(nullptr, count);
    std::printf("list %d %u\n", error, count);
    std::vector<std::shared_ptr<Camera>> cameras(count);
    if (count > 0)
        system.GetCameras(cameras.data(), count);
    for (const auto &camera : cameras)
        std::printf("camera %s\n", extendedId(*camera).c_str());
}

/// Waits until four cameras are listed. The producers of a busy machine answer later than a list waits.
void search(CvxSystem &system)
{
    constexpr std::chrono::seconds limit(60); // Only a hang takes so long.
    const auto end = std::chrono::steady_clock::now() + limit;
    unsigned count = 0;
    while (count < 4 && std::chrono::steady_clock::now() < end) {
        system.GetCameras(nullptr, count);
        usleep(1000);
    }
}

/// Makes standard error a pipe that nobody reads.
void replaceStandardError(bool isFull)
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC | (isFull ? O_NONBLOCK : 0)) != 0)
        std::abort();
    dup2(ends[1], STDERR_FILENO);
    if (!isFull)
        close(ends[0]);
    while (isFull && write(STDERR_FILENO, "x", 1) == 1) { }
    fcntl(STDERR_FILENO, F_SETFL, 0); // Makes writing block again.
}

void forkAndExit()
{
    const pid_t child = fork();
    if (child == 0) {
        isForkedChild = true;
        std::exit(EXIT_SUCCESS); // Runs the destructors of static objects.
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::printf("fork %d\n", status);
}

} // namespace

// LeakSanitizer calls this function. In a forked child, LeakSanitizer would report memory that only the
// threads of the parent reference.
extern "C" __attribute__((visibility("default"))) int
__lsan_is_turned_off() // NOLINT(bugprone-reserved-identifier)
{
    return isForkedChild;
}

int main(int argc, char *argv[])
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    CvxSystem &system = CvxSystem::GetInstance();
    for (int i = 1; i < argc; ++i) {
        const std::string step = argv[i];
        if (step == "start")
            std::printf("start %d\n", system.Startup());
        else if (step == "stop")
            std::printf("stop %d\n", system.Shutdown());
        else if (step == "list")
            list(system);
        else if (step == "search")
            search(system);
        else if (step == "closedStandardError")
            replaceStandardError(false);
        else if (step == "fullStandardError")
            replaceStandardError(true);
        else if (step == "fork")
            forkAndExit();
        else if (step == "wait")
            while (std::getchar() != EOF) { }
    }
    return EXIT_SUCCESS;
}
