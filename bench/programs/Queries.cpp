// Measures the queries of the configuration with the shipped data. Prints a line for each query: its name,
// the allocations per call, and the microseconds per call for each batch.

#include "bench/programs/CountedAllocations.h"
#include "bench/programs/ReferenceCameras.h"
#include "config/LauncherConfig.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace {

constexpr int roundsPerBatch = 50; // A round calls the query once for each camera.

template <typename Query>
void measure(const char *name, const QVector<CameraInfo> &cameras, int batches, const Query &query)
{
    for (const CameraInfo &camera : cameras)
        query(camera); // The first call is not measured, because it initialises data.
    const std::size_t before = countedAllocations();
    for (const CameraInfo &camera : cameras)
        query(camera);
    std::printf("%s %.2f", name, double(countedAllocations() - before) / cameras.size());
    for (int batch = 0; batch < batches; ++batch) {
        const auto start = std::chrono::steady_clock::now();
        for (int round = 0; round < roundsPerBatch; ++round) {
            for (const CameraInfo &camera : cameras)
                query(camera);
        }
        const std::chrono::duration<double, std::micro> time = std::chrono::steady_clock::now() - start;
        std::printf(" %.4f", time.count() / roundsPerBatch / cameras.size());
    }
    std::printf("\n");
}

} // namespace

int main(int argc, char *argv[])
{
    const int batches = argc > 1 ? std::atoi(argv[1]) : 15;
    LauncherConfig config;
    config.load();
    QVector<CameraInfo> cameras = referenceCameras(64);
    for (int index = 0; index < cameras.size(); index += 4) // These cameras match no row of the reference.
        cameras[index].modelName = QStringLiteral("Unknown to the reference");
    QVector<CameraInfo> large = cameras;
    for (CameraInfo &camera : large) {
        camera.vendorName = QStringLiteral("KORDANE");
        camera.modelName = QStringLiteral("Unknown to the table");
    }
    const HardwareGroupConfig highRes = config.findGroupForCamera(large.constFirst());
    const QString platform = QStringLiteral("linux_x86_64");

    measure("findGroupForCamera", cameras, batches,
        [&](const CameraInfo &camera) { return config.findGroupForCamera(camera); });
    measure("findThumbnailForCamera", cameras, batches,
        [&](const CameraInfo &camera) { return config.findThumbnailForCamera(camera); });
    measure("recommendedToolsIdsForCamera", large, batches, [&](const CameraInfo &camera) {
        return config.recommendedToolsIdsForCamera(highRes, camera, platform);
    });
}
