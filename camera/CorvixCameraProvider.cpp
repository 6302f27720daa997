#include "camera/CorvixCameraProvider.h"

#include "CvxCPP/CvxCPP.h"
#include "camera/SdkText.h"

#include <QByteArray>
#include <QStringList>

#include <limits>
#include <memory>
#include <new>
#include <string>
#include <string_view>
#include <vector>

using namespace CvxCPP;

namespace {

using CameraHandles = std::vector<std::shared_ptr<Camera>>;

/// The SDK's cameras; empty when a list call fails or memory runs out.
CameraHandles cameraHandles(CvxSystem &system)
{
    unsigned count = 0;
    if (system.GetCameras(nullptr, count) != CvxErrorSuccess || count == 0)
        return {};
    try {
        CameraHandles handles(count);
        if (system.GetCameras(handles.data(), count) != CvxErrorSuccess)
            return {};
        if (count < handles.size())
            handles.resize(count);
        return handles;
    } catch (const std::bad_alloc &) {
        return {};
    }
}

/// The camera's plain ID, as bytes or for showing; empty when it cannot be read.
template <class Text>
Text plainId(const Camera &camera)
{
    Text id;
    SdkText::read([&](char *buffer, unsigned &size) { return camera.GetID(buffer, size, false); }, id);
    return id;
}

using TextGetter = CvxError (Camera::*)(char *, unsigned &) const;

QString text(const Camera &camera, TextGetter getter)
{
    QString value;
    SdkText::read([&](char *buffer, unsigned &size) { return (camera.*getter)(buffer, size); }, value);
    return value;
}

/// Any type that the table does not name, and one that cannot be read, is "Other".
QString transportName(const Camera &camera)
{
    static const QStringList names{
        QStringLiteral("Other"), // 0: unknown
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

/// The feature, or null when the interface has none of that name.
std::shared_ptr<Feature> feature(Interface &iface, const char *name)
{
    std::shared_ptr<Feature> found;
    if (iface.GetFeatureByName(name, found) != CvxErrorSuccess)
        return nullptr;
    return found;
}

/// Reads a text feature, up to its first NUL; false when that fails or memory runs out.
bool readText(const Feature &textFeature, std::string &value)
{
    try {
        return textFeature.GetValue(value) == CvxErrorSuccess;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

/// The same for a text to be shown.
bool readText(const Feature &textFeature, QString &value)
{
    try {
        std::string bytes;
        if (!readText(textFeature, bytes))
            return false;
        value = QString::fromUtf8(bytes.c_str());
        return true;
    } catch (const std::bad_alloc &) {
        return false;
    }
}

/// Walks the interface's device list for the camera and reads its vendor there; the first match decides.
bool readVendorFromList(Interface &iface, std::string_view cameraId, QString &vendor)
{
    const std::shared_ptr<Feature> update = feature(iface, "DeviceUpdateList");
    const std::shared_ptr<Feature> selector = feature(iface, "DeviceSelector");
    const std::shared_ptr<Feature> deviceId = feature(iface, "DeviceID");
    const std::shared_ptr<Feature> deviceVendor = feature(iface, "DeviceVendorName");
    if (!update || !selector || !deviceId || !deviceVendor || update->RunCommand() != CvxErrorSuccess)
        return false;

    long min = 0;
    long max = -1;
    if (selector->GetRange(min, max) != CvxErrorSuccess)
        return false;
    for (long index = min; index <= max; ++index) {
        std::string id; // Not Qt's: with a thousand cameras, half a million of them are read and compared.
        if (selector->SetValue(index) == CvxErrorSuccess && readText(*deviceId, id) && id == cameraId)
            return readText(*deviceVendor, vendor);
        if (index == std::numeric_limits<long>::max())
            break; // The increment would overflow.
    }
    return false;
}

/// The camera object does not carry its vendor, its interface does.
QString vendorName(const Camera &camera)
{
    std::shared_ptr<Interface> iface;
    if (camera.GetInterface(iface) != CvxErrorSuccess || !iface)
        return {};
    const auto cameraId = plainId<QByteArray>(camera);
    if (cameraId.isEmpty())
        return {};
    QString vendor;
    if (readVendorFromList(*iface, {cameraId.constData(), std::size_t(cameraId.size())}, vendor))
        return vendor;

    // Intended: whatever device is selected now answers, even if it is another one on the same interface.
    const std::shared_ptr<Feature> deviceVendor = feature(*iface, "DeviceVendorName");
    if (deviceVendor && readText(*deviceVendor, vendor))
        return vendor;
    return {};
}

CameraInfo toCameraInfo(const Camera &camera)
{
    CameraInfo info;
    info.cameraId = plainId<QString>(camera);
    info.modelName = text(camera, &Camera::GetModel);
    info.cameraName = text(camera, &Camera::GetName);
    info.serialNumber = text(camera, &Camera::GetSerialNumber);
    info.vendorName = vendorName(camera);
    info.interfaceType = transportName(camera);
    return info;
}

/// A handle that the SDK left null is a camera of which nothing can be read.
CameraInfo unreadableCamera()
{
    CameraInfo info;
    info.interfaceType = QStringLiteral("Other");
    return info;
}

} // namespace

CorvixCameraProvider::CorvixCameraProvider() : m_system(CvxSystem::GetInstance()) { }

QVector<CameraInfo> CorvixCameraProvider::listCameras() const
{
    QVector<CameraInfo> list;
    for (const std::shared_ptr<Camera> &camera : cameraHandles(m_system))
        list.append(camera ? toCameraInfo(*camera) : unreadableCamera());
    return list;
}
