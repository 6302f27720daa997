#include "sdk/names/CameraNames.h"

#include <cstring>
#include <iterator>

using namespace CvxCPP;

namespace {

template <typename Read>
std::string readText(const Read &read)
{
    unsigned size = 0;
    if (read(nullptr, size) != CvxErrorSuccess)
        return {};
    std::string text(size, '\0');
    if (read(text.data(), size) != CvxErrorSuccess)
        return {};
    text.resize(std::strlen(text.c_str()));
    return text;
}

constexpr const char *technologyNames[] = {"unknown", "GigE", "Camera Link", "IIDC", "UVC", "CoaXPress",
    "Camera Link HS", "USB", "Ethernet", "PCI", "custom", "mixed"};

} // namespace

CameraNames readCameraNames(const Camera &camera)
{
    const auto id = [&](bool isExtended) {
        return readText([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, isExtended); });
    };
    const auto read = [&](CvxError (Camera::*function)(char *, unsigned &) const) {
        return readText([&](char *buffer, unsigned &size) { return (camera.*function)(buffer, size); });
    };
    return {id(false), id(true), read(&Camera::GetModel), read(&Camera::GetSerialNumber),
        read(&Camera::GetName), read(&Camera::GetUserName)};
}

const char *technologyName(const Camera &camera)
{
    CvxTransportLayerType type = CvxTransportLayerUnknown;
    if (camera.GetInterfaceType(type) != CvxErrorSuccess || type >= std::size(technologyNames))
        return technologyNames[CvxTransportLayerUnknown];
    return technologyNames[type];
}
