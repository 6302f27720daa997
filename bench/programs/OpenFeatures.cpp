// Measures the opening of a camera with many features; see bench/camera/ManyFeatures.h.
//
// usage: bench_open_features describe  prints the register description of the camera
//        bench_open_features open      ms until the only camera is open and its list of features is there;
//                                      number of features

#include "CvxCPP/Device.h"
#include "bench/camera/ManyFeatures.h"
#include "bench/programs/Timing.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string_view>

using namespace CvxCPP;

namespace {

int open()
{
    CvxSystem &system = CvxSystem::GetInstance();
    std::shared_ptr<Camera> camera;
    unsigned count = 0;
    if (system.Startup() || system.GetCameras(nullptr, count) || count != 1
        || system.GetCameras(&camera, count))
        return EXIT_FAILURE;
    std::shared_ptr<Device> device;
    std::vector<NodeInfo> nodes;
    const auto start = Clock::now();
    CvxResult result = camera->Open(CvxAccessControl, device);
    if (result)
        result = device->GetNodes(nodes);
    const double time = microsecondsSince(start);
    if (!result) {
        std::fprintf(stderr, "bench_open_features: %s\n", result.text.c_str());
        return EXIT_FAILURE;
    }
    const auto features = std::count_if(
        nodes.begin(), nodes.end(), [](const NodeInfo &node) { return node.type != NodeType::Category; });
    std::printf("%f\n%zu\n", time / 1000, static_cast<std::size_t>(features));
    return EXIT_SUCCESS;
}

} // namespace

int main(int argc, char *argv[])
{
    const std::string_view mode = argc == 2 ? argv[1] : "";
    if (mode == "open")
        return open();
    if (mode != "describe")
        return EXIT_FAILURE;
    std::fputs(describeManyFeatures(manyFeatures).c_str(), stdout);
    return EXIT_SUCCESS;
}
