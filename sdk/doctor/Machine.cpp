#include "sdk/doctor/Machine.h"

#include <algorithm>
#include <atomic>
#include <thread>

namespace {

constexpr char loopbackName[] = "lo";

/// Reads several cameras at the same time, because each camera that does not answer takes two seconds.
std::vector<CameraAddress> readCameras(const std::vector<SeenCamera> &seen)
{
    constexpr std::size_t maxThreads = 16;
    std::vector<CameraAddress> cameras(seen.size());
    std::atomic<std::size_t> next{0};
    std::vector<std::thread> threads;
    while (threads.size() < std::min(maxThreads, seen.size()))
        threads.emplace_back([&] {
            for (std::size_t index = next++; index < seen.size(); index = next++)
                cameras[index] = readCameraAddress(seen[index]);
        });
    for (std::thread &thread : threads)
        thread.join();
    return cameras;
}

} // namespace

bool Machine::hasNetworkCamera() const
{
    return std::any_of(cameras.begin(), cameras.end(),
        [](const CameraAddress &camera) { return camera.seen.networkInterface.name != loopbackName; });
}

bool Machine::hasCameraAt(const std::string &networkInterface) const
{
    return std::any_of(cameras.begin(), cameras.end(),
        [&](const CameraAddress &camera) { return camera.seen.networkInterface.name == networkInterface; });
}

std::vector<NetworkLink> readNetworkLinks(const FileTree &files)
{
    constexpr std::int64_t ethernetType = 1;
    std::vector<NetworkLink> links;
    for (const std::string &name : files.names("/sys/class/net")) {
        const std::string path = "/sys/class/net/" + name;
        const bool isWired = files.number(path + "/type") == ethernetType && files.exists(path + "/device")
            && !files.exists(path + "/wireless") && !files.exists(path + "/phy80211");
        if (!isWired || files.exists(path + "/master"))
            continue;
        NetworkLink link;
        link.name = name;
        // The file cannot be read while the interface is down.
        const auto carrier = files.number(path + "/carrier");
        link.isUp = carrier.has_value();
        link.hasCarrier = carrier == 1;
        link.mtu = files.number(path + "/mtu").value_or(0);
        const auto speed = files.number(path + "/speed");
        if (link.hasCarrier && speed && *speed > 0)
            link.speed = speed;
        links.push_back(std::move(link));
    }
    return links;
}

Machine readMachine(const FileTree &files)
{
    Machine machine;
    machine.files = files;
    machine.links = readNetworkLinks(files);
    machine.addresses = interfaceAddresses();
    machine.cameras = readCameras(oncePerCamera(seenCameras(machine.addresses)));
    machine.neighbours = readNeighbours(files.root());
    return machine;
}
