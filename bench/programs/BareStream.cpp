// Measures a camera that is opened in this process, as a floor for the SDK. Prints one number per line.
//
// usage: bench_bare_stream PRODUCER CAMERA first             ms from the start to the first image
//        bench_bare_stream PRODUCER CAMERA stream SECONDS    images/s, and µs of processor time per image
//        bench_bare_stream PRODUCER CAMERA access COUNT      median µs to read, and write, the exposure time
//        bench_bare_stream PRODUCER CAMERA memory            bytes while streaming, minus the buffers

#include "bench/programs/BareCamera.h"
#include "bench/programs/Timing.h"

#include <cstdio>
#include <cstdlib>

namespace {

constexpr std::size_t buffers = 8;
constexpr double shortExposure = 20; // Microseconds.

void measureStream(BareCamera &camera, double seconds)
{
    camera.start(buffers);
    camera.takeImage();
    const double before = processorTime(RUSAGE_SELF);
    const auto start = Clock::now();
    int images = 0;
    for (; microsecondsSince(start) < seconds * 1e6; ++images)
        camera.takeImage();
    std::printf("%f\n%f\n", images / (microsecondsSince(start) / 1e6),
        (processorTime(RUSAGE_SELF) - before) / images);
    camera.stop();
}

/// Measures the accesses to a register; the node map costs the SDK the same.
void measureAccess(BareCamera &camera, int count)
{
    const auto value = camera.nodes().read("ExposureTime");
    std::printf("%f\n", medianDuration(count, [&] { camera.nodes().read("ExposureTime"); }));
    std::printf("%f\n", medianDuration(count, [&] {
        camera.nodes().write("ExposureTime", std::get<CvxCPP::NodeValue>(value));
    }));
}

void measureMemory(BareCamera &camera)
{
    constexpr int images = 20; // Every buffer is used.
    camera.start(buffers);
    for (int image = 0; image < images; ++image)
        camera.takeImage();
    const auto payload = static_cast<double>(camera.nodes().readInteger("PayloadSize").value_or(0));
    std::printf("%f\n", memoryOf("self") - payload * buffers);
    camera.stop();
}

} // namespace

int main(int argc, char *argv[])
{
    if (argc < 4)
        return EXIT_FAILURE;
    const auto start = Clock::now();
    const std::string mode = argv[3];
    BareCamera camera(argv[1], argv[2]);
    camera.nodes().write("AcquisitionFrameRateEnable", false); // The camera sends at its full rate.
    camera.nodes().write("ExposureTime", shortExposure);
    if (mode == "first") {
        camera.start(buffers);
        camera.takeImage();
        std::printf("%f\n", microsecondsSince(start) / 1000);
        camera.stop();
    } else if (mode == "stream") {
        measureStream(camera, std::atof(argv[4]));
    } else if (mode == "access") {
        measureAccess(camera, std::atoi(argv[4]));
    } else if (mode == "memory") {
        measureMemory(camera);
    }
    return EXIT_SUCCESS;
}
