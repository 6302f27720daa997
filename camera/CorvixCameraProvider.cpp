#include "camera/CorvixCameraProvider.h"

#include "CvxCPP/CvxCPP.h"
#include "camera/SdkRead.h"

#include <QStringList>

#include <limits>
#include <memory>
#include <string>
#include <vector>

using namespace CvxCPP;

namespace {

using CameraHandles = std::vector<std::shared_ptr<Camera>>;

/// Returns the SDK's cameras; empty if one of the two GetCameras() calls fails.
CameraHandles cameraHandles(CvxSystem &system)
{
    unsigned count = 0;
    if (system.GetCameras(nullptr, count) != CvxErrorSuccess || count == 0)
        return {};
    CameraHandles handles(count);
    if (system.GetCameras(handles.data(), count) != CvxErrorSuccess)
        return {};
    if (count < handles.size())
        handles.resize(count); // Cameras can disappear between the two calls.
    return handles;
}

std::optional<std::string> plainId(const Camera &camera)
{
    return SdkRead::bytes([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, false); });
}

/// Returns the decoded string, or an empty string if the bytes could not be read.
QString field(const std::optional<std::string> &bytes)
{
    return SdkRead::decoded(bytes).value_or(QString());
}

QString field(const Camera &camera, CvxError (Camera::*getter)(char *, unsigned &) const)
{
    return field(
        SdkRead::bytes([&](char *buffer, unsigned &size) { return (camera.*getter)(buffer, size); }));
}

QString transportName(const Camera &camera)
{
    static const QStringList names{
        QStringLiteral("Other"), // The index is the type of the SDK; 0 means unknown.
        QStringLiteral("GigE"),
        QStringLiteral("CameraLink"),
        QStringLiteral("IIDC"),
        QStringLiteral("UVC"),
        QStringLiteral("CoaXPress"),
        QStringLiteral("CameraLinkHS"),
        QStringLiteral("USB"),
        QStringLiteral("Ethernet"),
        QStringLiteral("PCI"),
    };
    CvxTransportLayerType type = CvxTransportLayerUnknown;
    if (camera.GetInterfaceType(type) != CvxErrorSuccess || type >= std::uint32_t(names.size()))
        return QStringLiteral("Other");
    return names.at(int(type));
}

/// Returns the feature, or null if the interface has no feature with this name.
std::shared_ptr<Feature> feature(Interface &iface, const char *name)
{
    std::shared_ptr<Feature> found;
    if (iface.GetFeatureByName(name, found) != CvxErrorSuccess)
        return nullptr;
    return found;
}

/// Searches the interface's device list and returns the vendor of the first entry with this camera ID.
/// Returns nothing if the list cannot be read, if no entry has this ID, or if the entry's vendor cannot be
/// read.
std::optional<QString> vendorFromDeviceList(Interface &iface, const std::string &cameraId)
{
    const std::shared_ptr<Feature> update = feature(iface, "DeviceUpdateList");
    const std::shared_ptr<Feature> selector = feature(iface, "DeviceSelector");
    const std::shared_ptr<Feature> deviceId = feature(iface, "DeviceID");
    const std::shared_ptr<Feature> deviceVendor = feature(iface, "DeviceVendorName");
    if (!update || !selector || !deviceId || !deviceVendor || update->RunCommand() != CvxErrorSuccess)
        return std::nullopt;

    long min = 0;
    long max = -1;
    if (selector->GetRange(min, max) != CvxErrorSuccess)
        return std::nullopt;
    for (long index = min; index <= max; ++index) {
        // The IDs are compared as bytes: with a thousand cameras, decoding half a million IDs would be slow.
        if (selector->SetValue(index) == CvxErrorSuccess && SdkRead::bytes(*deviceId) == cameraId)
            return SdkRead::decoded(SdkRead::bytes(*deviceVendor));
        if (index == std::numeric_limits<long>::max())
            break; // The increment would overflow.
    }
    return std::nullopt;
}

/// Returns the camera's vendor. Only the camera's interface reports the vendor.
QString vendorName(const Camera &camera)
{
    std::shared_ptr<Interface> iface;
    if (camera.GetInterface(iface) != CvxErrorSuccess || !iface)
        return {};
    const std::string cameraId = plainId(camera).value_or(std::string());
    if (cameraId.empty())
        return {};
    if (const std::optional<QString> vendor = vendorFromDeviceList(*iface, cameraId))
        return *vendor;

    // Intended: the vendor of the interface's selected device is returned, even if that device is another
    // camera.
    const std::shared_ptr<Feature> deviceVendor = feature(*iface, "DeviceVendorName");
    return deviceVendor ? field(SdkRead::bytes(*deviceVendor)) : QString();
}

/// Returns the camera's record. If the SDK returned an empty handle, `camera` is null and the record contains
/// only the interface type.
CameraInfo toCameraInfo(const Camera *camera)
{
    CameraInfo info;
    info.interfaceType = QStringLiteral("Other");
    if (!camera)
        return info;
    info.cameraId = field(plainId(*camera));
    info.modelName = field(*camera, &Camera::GetModel);
    info.cameraName = field(*camera, &Camera::GetName);
    info.serialNumber = field(*camera, &Camera::GetSerialNumber);
    info.vendorName = vendorName(*camera);
    info.interfaceType = transportName(*camera);
    return info;
}

} // namespace

CorvixCameraProvider::CorvixCameraProvider() : m_system(CvxSystem::GetInstance()) { }

QVector<CameraInfo> CorvixCameraProvider::listCameras() const
{
    QVector<CameraInfo> list;
    for (const auto &camera : SdkRead::orEmpty([this] { return cameraHandles(m_system); }))
        list.append(toCameraInfo(camera.get()));
    return list;
}
