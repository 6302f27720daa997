// What a program does with the library, driven by its arguments, each of which is one step:
//   start, stop, list, watch (prints announcements from here on), leave (exits at once, without a stop),
//   fork (a forked child exits), wait (until standard input ends), unread (standard error is a closed pipe),
//   stuffed (standard error is a full pipe)

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

class Printer : public ICameraListObserver
{
public:
    void CameraListChanged(std::shared_ptr<Camera> camera, UpdateTriggerType reason) override
    {
        std::printf("%s %s\n", reason == UpdateTriggerPluggedIn ? "in" : "out", extendedId(*camera).c_str());
    }
};

void list(CvxSystem &system)
{
    const auto start = std::chrono::steady_clock::now();
    unsigned count = 0;
    const CvxError error = system.GetCameras(nullptr, count);
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - start;
    std::printf("list %d %u %.1f ms\n", error, count, time.count());
    std::vector<std::shared_ptr<Camera>> cameras(count);
    if (count > 0)
        system.GetCameras(cameras.data(), count);
    for (const auto &camera : cameras)
        std::printf("camera %s\n", extendedId(*camera).c_str());
}

/// Gives standard error to a pipe, and returns the end to read from.
int pipeStandardError()
{
    int ends[2] = {-1, -1};
    if (pipe2(ends, O_CLOEXEC) != 0)
        std::abort();
    dup2(ends[1], STDERR_FILENO);
    close(ends[1]);
    return ends[0];
}

void stuffStandardError()
{
    pipeStandardError();
    fcntl(STDERR_FILENO, F_SETFL, O_NONBLOCK);
    while (write(STDERR_FILENO, "x", 1) == 1) { }
    fcntl(STDERR_FILENO, F_SETFL, 0);
}

void forkAndExit()
{
    const pid_t child = fork();
    if (child == 0) {
        isForkedChild = true;
        std::exit(EXIT_SUCCESS); // With the destructors of static objects.
    }
    int status = 0;
    waitpid(child, &status, 0);
    std::printf("fork %d\n", status);
}

} // namespace

// Asked by LeakSanitizer, which would report what only the threads that a fork leaves behind refer to.
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
        else if (step == "watch")
            std::printf("watch %d\n", system.RegisterCameraListObserver(std::make_shared<Printer>()));
        else if (step == "unread")
            close(pipeStandardError());
        else if (step == "stuffed")
            stuffStandardError();
        else if (step == "fork")
            forkAndExit();
        else if (step == "leave")
            std::_Exit(EXIT_SUCCESS);
        else if (step == "wait")
            while (std::getchar() != EOF) { }
    }
    return EXIT_SUCCESS;
}
