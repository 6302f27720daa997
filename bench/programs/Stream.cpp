// Measures a camera that the SDK has opened. Prints one number per line.
//
// usage: bench_stream CAMERA first             ms from the call of Open() to the first image
//        bench_stream CAMERA stream SECONDS    images/s, and µs of processor time per image in all processes
//        bench_stream CAMERA access COUNT      median µs to read, and to write, the exposure time
//        bench_stream CAMERA latency COUNT     median µs from the event in the host to the image
//        bench_stream CAMERA memory            bytes of both processes while streaming, minus the buffers

#include "CvxCPP/Device.h"
#include "bench/programs/HostProcess.h"
#include "bench/programs/Timing.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

using namespace CvxCPP;

namespace {

constexpr unsigned buffers = 8;
constexpr double shortExposure = 20; // Microseconds.
constexpr std::chrono::seconds patience{5};

void require(const CvxResult &result)
{
    if (result)
        return;
    std::fprintf(stderr, "bench_stream: %s\n", result.text.c_str());
    std::exit(EXIT_FAILURE);
}

std::shared_ptr<Camera> findCamera(const std::string &id)
{
    CvxSystem &system = CvxSystem::GetInstance();
    unsigned count = 0;
    if (system.Startup() || system.GetCameras(nullptr, count))
        return nullptr;
    std::vector<std::shared_ptr<Camera>> cameras(count);
    system.GetCameras(cameras.data(), count);
    cameras.resize(count);
    for (const auto &camera : cameras) {
        char text[256];
        unsigned size = sizeof text;
        if (camera->GetID(text, size, false) == CvxErrorSuccess && text == id)
            return camera;
    }
    return nullptr;
}

std::shared_ptr<const Image> takeImage(Stream &stream)
{
    std::shared_ptr<const Image> image;
    require(stream.WaitForImage(patience, image));
    return image;
}

void measureStream(Stream &stream, double seconds)
{
    takeImage(stream);
    const std::string host = hostProcess();
    const double before = processorTime(RUSAGE_SELF) + processorTimeOf(host);
    const auto start = Clock::now();
    int images = 0;
    for (; microsecondsSince(start) < seconds * 1e6; ++images)
        takeImage(stream);
    const double rate = images / (microsecondsSince(start) / 1e6);
    const double used = processorTime(RUSAGE_SELF) + processorTimeOf(host) - before;
    std::printf("%f\n%f\n", rate, used / images);
}

void measureAccess(Device &device, int count)
{
    double value = 0;
    require(device.ReadFloat("ExposureTime", value));
    std::printf("%f\n", medianDuration(count, [&] { require(device.ReadFloat("ExposureTime", value)); }));
    std::printf("%f\n", medianDuration(count, [&] { require(device.WriteFloat("ExposureTime", value)); }));
}

void measureLatency(Stream &stream, int count)
{
    std::vector<double> latencies;
    for (int index = 0; index < count; ++index) {
        const auto image = takeImage(stream);
        const auto now = Clock::now().time_since_epoch(); // The steady clock is CLOCK_MONOTONIC.
        latencies.push_back(static_cast<double>(std::chrono::nanoseconds(now).count()
                                - static_cast<std::int64_t>(image->GetInfo().receivedAt))
            / 1000);
    }
    std::printf("%f\n", median(std::move(latencies)));
}

void measureMemory(Stream &stream)
{
    constexpr int images = 20; // Every buffer is used.
    std::size_t payload = 0;
    for (int image = 0; image < images; ++image)
        payload = takeImage(stream)->GetSize();
    std::printf("%f\n", memoryOf("self") + memoryOf(hostProcess()) - static_cast<double>(payload * buffers));
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 3)
        return EXIT_FAILURE;
    const std::string mode = argv[2];
    const auto camera = findCamera(argv[1]);
    if (!camera)
        return EXIT_FAILURE;
    const auto start = Clock::now();
    std::shared_ptr<Device> device;
    require(camera->Open(CvxAccessControl, device));
    require(device->WriteBoolean("AcquisitionFrameRateEnable", mode == "latency"));
    require(device->WriteFloat("ExposureTime", shortExposure));
    std::shared_ptr<Stream> stream;
    if (mode == "access") {
        measureAccess(*device, std::atoi(argv[3]));
        return EXIT_SUCCESS;
    }
    require(device->StartStream(buffers, StreamPolicy::EveryImage, stream));
    if (mode == "first") {
        takeImage(*stream);
        std::printf("%f\n", microsecondsSince(start) / 1000);
    } else if (mode == "stream") {
        measureStream(*stream, std::atof(argv[3]));
    } else if (mode == "latency") {
        measureLatency(*stream, std::atoi(argv[3]));
    } else if (mode == "memory") {
        measureMemory(*stream);
    }
    return EXIT_SUCCESS;
}
