// Uses the SDK of this program's installation as the launcher does, and prints what a person would notice.
//
// usage: bench_watch_cameras first MODEL             the first list: number of cameras, milliseconds
//        bench_watch_cameras later MODEL SECONDS     the same for each list that follows, at random times
//        bench_watch_cameras watch MODEL             until standard input ends: each call of the observer
//                                                    and each list
//
// "watch" prints "added ID" or "removed ID" for a call, and "list ID…" for a list.
// Only cameras of this model are counted. Each line of "watch" begins with the time in seconds of the
// monotonic clock. While a list is being made, further calls of the observer start no other list.

#include "CvxCPP/CvxCPP.h"

#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <poll.h>
#include <random>
#include <string>
#include <sys/eventfd.h>
#include <thread>
#include <unistd.h>
#include <vector>

using namespace CvxCPP;

namespace {

using Clock = std::chrono::steady_clock;
using Cameras = std::vector<std::shared_ptr<Camera>>;

constexpr int maxPauseMilliseconds = 500; // Between two lists of the mode "later".

template <typename Read>
std::string textOf(const Read &read)
{
    unsigned size = 0;
    if (read(nullptr, size) != CvxErrorSuccess)
        return {};
    std::string text(size, '\0');
    if (read(text.data(), size) != CvxErrorSuccess)
        return {};
    text.resize(size - 1);
    return text;
}

std::string modelOf(const Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetModel(buffer, size); });
}

std::string idOf(const Camera &camera)
{
    return textOf([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, true); });
}

/// Returns the cameras of a model. Ends the program if the SDK reports an error.
Cameras listedCameras(const std::string &model)
{
    unsigned count = 0;
    if (CvxSystem::GetInstance().GetCameras(nullptr, count) != CvxErrorSuccess)
        std::exit(EXIT_FAILURE);
    Cameras cameras(count);
    if (CvxSystem::GetInstance().GetCameras(cameras.data(), count) != CvxErrorSuccess)
        std::exit(EXIT_FAILURE);
    cameras.resize(count);
    Cameras found;
    for (const auto &camera : cameras) {
        if (modelOf(*camera) == model)
            found.push_back(camera);
    }
    return found;
}

double seconds(Clock::duration duration)
{
    return std::chrono::duration<double>(duration).count();
}

void printList(Clock::time_point start, const std::string &model)
{
    const std::size_t count = listedCameras(model).size();
    std::printf("%zu %.3f\n", count, 1e3 * seconds(Clock::now() - start));
}

void listAtRandomTimes(const std::string &model, Clock::duration time)
{
    std::mt19937 random(1);
    std::uniform_int_distribution<> pause(0, maxPauseMilliseconds);
    for (const auto end = Clock::now() + time; Clock::now() < end;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(pause(random)));
        printList(Clock::now(), model);
    }
}

/// Prints every call, and wakes up the thread that makes lists unless a list is being made.
class Observer final : public ICameraListObserver
{
public:
    explicit Observer(std::string model) : m_model(std::move(model)) { }

    void CameraListChanged(std::shared_ptr<Camera> camera, UpdateTriggerType reason) override
    {
        if (modelOf(*camera) == m_model)
            print(reason == UpdateTriggerPluggedIn ? "added" : "removed", " " + idOf(*camera));
        if (!m_isListing)
            eventfd_write(m_wakeUp, 1);
    }

    int wakeUp() const { return m_wakeUp; }

    void list()
    {
        m_isListing = true;
        std::string ids;
        for (const auto &camera : listedCameras(m_model))
            ids += " " + idOf(*camera);
        eventfd_t ignored = 0;
        eventfd_read(m_wakeUp, &ignored);
        m_isListing = false;
        print("list", ids);
    }

private:
    void print(const char *what, const std::string &ids)
    {
        const std::lock_guard lock(m_printing);
        std::printf("%.6f %s%s\n", seconds(Clock::now().time_since_epoch()), what, ids.c_str());
    }

    const std::string m_model;
    const int m_wakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    std::atomic<bool> m_isListing{false};
    std::mutex m_printing;
};

void watch(Observer &observer)
{
    observer.list();
    for (;;) {
        pollfd waiting[] = {{STDIN_FILENO, POLLIN, 0}, {observer.wakeUp(), POLLIN, 0}};
        if (poll(waiting, 2, -1) < 0 || waiting[0].revents != 0)
            return;
        observer.list();
    }
}

} // namespace

int main(int count, char *arguments[])
{
    std::setvbuf(stdout, nullptr, _IOLBF, 0);
    const std::string mode = count > 2 ? arguments[1] : "", model = count > 2 ? arguments[2] : "";
    const auto start = Clock::now();
    CvxSystem &system = CvxSystem::GetInstance();
    if (system.Startup() != CvxErrorSuccess)
        return EXIT_FAILURE;
    if (mode == "first") {
        printList(start, model);
    } else if (mode == "later" && count == 4) {
        listedCameras(model);
        listAtRandomTimes(model, std::chrono::seconds(std::strtol(arguments[3], nullptr, 10)));
    } else if (mode == "watch") {
        const auto observer = std::make_shared<Observer>(model);
        system.RegisterCameraListObserver(observer);
        watch(*observer);
    } else {
        return 2;
    }
    system.Shutdown();
}
