#pragma once

#include "camera/CorvixCameraProvider.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/CameraBuilder.h"

#include <QtTest>

/// What the tests of the camera list share.
namespace ProviderTest {

/// An interface with these devices, selected by 0, 1, 2 …
inline std::shared_ptr<CvxScripted::InterfaceRecord> makeInterface(
    const std::vector<CvxScripted::DeviceRecord> &devices)
{
    auto record = std::make_shared<CvxScripted::InterfaceRecord>();
    for (const CvxScripted::DeviceRecord &device : devices)
        record->devices[long(record->devices.size())] = device;
    return record;
}

/// A camera with every text set, on an interface of its own that knows its vendor.
inline CvxScripted::CameraRecord completeCamera(const std::string &id)
{
    CvxScripted::CameraRecord record;
    record.id = id;
    record.extendedId = "extended " + id;
    record.model = "model " + id;
    record.name = "name " + id;
    record.serialNumber = "serial " + id;
    record.type = CvxCPP::CvxTransportLayerUSB;
    record.iface = makeInterface({{id, "vendor " + id, CvxCPP::CvxErrorSuccess}});
    return record;
}

/// What the list holds for completeCamera().
inline CameraInfo completeInfo(const QString &id)
{
    CameraInfo info;
    info.cameraId = id;
    info.vendorName = QStringLiteral("vendor ") + id;
    info.modelName = QStringLiteral("model ") + id;
    info.cameraName = QStringLiteral("name ") + id;
    info.serialNumber = QStringLiteral("serial ") + id;
    info.interfaceType = QStringLiteral("USB");
    return info;
}

/// Lists the scripted cameras.
inline QVector<CameraInfo> list()
{
    return CorvixCameraProvider().listCameras();
}

/// Lists the one camera.
inline CameraInfo listOne(const CvxScripted::CameraRecord &record)
{
    CvxScripted::script().cameras = {record};
    const QVector<CameraInfo> cameras = list();
    return cameras.size() == 1 ? cameras.first() : CameraInfo();
}

} // namespace ProviderTest
