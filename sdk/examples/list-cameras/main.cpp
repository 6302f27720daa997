// Prints one line for each camera that is connected: model, serial number and ID, with tabs between them.

#include <CvxCPP/CvxCPP.h>

#include <cstdio>
#include <cstring>
#include <memory>
#include <string>
#include <vector>

using namespace CvxCPP;

namespace {

using TextFunction = CvxError (Camera::*)(char *, unsigned &) const;

/// Reads a text with two calls, one for its length and one for the text; empty when the camera has none.
std::string text(const Camera &camera, TextFunction function)
{
    unsigned size = 0;
    if ((camera.*function)(nullptr, size) != CvxErrorSuccess)
        return {};
    std::string buffer(size, '\0');
    if ((camera.*function)(buffer.data(), size) != CvxErrorSuccess)
        return {};
    buffer.resize(std::strlen(buffer.c_str())); // The length counts the closing NUL.
    return buffer;
}

std::string id(const Camera &camera)
{
    unsigned size = 0;
    if (camera.GetID(nullptr, size, false) != CvxErrorSuccess)
        return {};
    std::string buffer(size, '\0');
    if (camera.GetID(buffer.data(), size, false) != CvxErrorSuccess)
        return {};
    buffer.resize(std::strlen(buffer.c_str()));
    return buffer;
}

} // namespace

int main()
{
    CvxSystem &system = CvxSystem::GetInstance();
    if (const CvxError error = system.Startup(); error != CvxErrorSuccess) {
        std::fprintf(stderr, "The camera system does not start: error %d\n", error);
        return 1;
    }

    unsigned count = 0;
    CvxError error = system.GetCameras(nullptr, count); // Searches, which takes a second or more.
    std::vector<std::shared_ptr<Camera>> cameras(count);
    if (error == CvxErrorSuccess && count > 0)
        error = system.GetCameras(cameras.data(), count);
    if (error != CvxErrorSuccess)
        std::fprintf(stderr, "The cameras cannot be listed: error %d\n", error);

    cameras.resize(error == CvxErrorSuccess ? count : 0); // One may have gone since the search.
    for (const auto &camera : cameras) {
        std::printf("%s\t%s\t%s\n", text(*camera, &Camera::GetModel).c_str(),
            text(*camera, &Camera::GetSerialNumber).c_str(), id(*camera).c_str());
    }

    cameras.clear();
    system.Shutdown();
    return error == CvxErrorSuccess ? 0 : 1;
}
