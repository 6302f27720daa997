// Prints one line for each connected camera: model, serial number and ID, separated by tabs.

#include <CvxCPP/CvxCPP.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

using namespace CvxCPP;

namespace {

/// Reads a string with two calls: the first call returns its size, and the second call returns the string.
/// Returns an empty string if a call fails.
template <typename Read>
std::string readString(const Read &read)
{
    unsigned size = 0;
    if (read(nullptr, size) != CvxErrorSuccess)
        return {};
    std::string buffer(size, '\0');
    if (read(buffer.data(), size) != CvxErrorSuccess)
        return {};
    buffer.resize(std::strlen(buffer.c_str())); // The size includes the terminating NUL.
    return buffer;
}

void print(const Camera &camera)
{
    const std::string model
        = readString([&](char *buffer, unsigned &size) { return camera.GetModel(buffer, size); });
    const std::string serial
        = readString([&](char *buffer, unsigned &size) { return camera.GetSerialNumber(buffer, size); });
    const std::string id
        = readString([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, false); });
    std::printf("%s\t%s\t%s\n", model.c_str(), serial.c_str(), id.c_str());
}

} // namespace

int main()
{
    CvxSystem &system = CvxSystem::GetInstance();
    if (const CvxError error = system.Startup(); error != CvxErrorSuccess) {
        std::fprintf(stderr, "The camera system cannot be started: error %d\n", error);
        return 1;
    }

    unsigned count = 0;
    CvxError error = system.GetCameras(nullptr, count); // This call blocks for up to 3 s.
    std::vector<std::shared_ptr<Camera>> cameras(count);
    if (error == CvxErrorSuccess && count > 0)
        error = system.GetCameras(cameras.data(), count);
    if (error != CvxErrorSuccess)
        std::fprintf(stderr, "The cameras cannot be listed: error %d\n", error);

    cameras.resize(error == CvxErrorSuccess ? count : 0); // The second call may return fewer cameras.
    for (const auto &camera : cameras)
        print(*camera);

    cameras.clear();
    system.Shutdown();
    return error == CvxErrorSuccess ? 0 : 1;
}
