#pragma once

#include "camera/CorvixCameraProvider.h"
#include "sdk/testing/ScriptedCvxCPP.h"
#include "tests/support/CameraBuilder.h"

#include <QtTest>

#include <climits>
#include <new>

/// These helpers are shared by the tests of the camera enumeration.
namespace ProviderTest {

using namespace CvxScripted;
using CvxCPP::CvxError;
using CvxCPP::CvxErrorFailed;
using CvxCPP::CvxErrorSuccess;

/// Returns an interface with these devices. Their selector values are 0, 1, 2 and so on.
inline std::shared_ptr<InterfaceRecord> makeInterface(const std::vector<DeviceRecord> &devices)
{
    auto record = std::make_shared<InterfaceRecord>();
    for (const DeviceRecord &device : devices)
        record->devices[long(record->devices.size())] = device;
    return record;
}

/// Returns a camera with all strings set. The camera has its own interface, which reports the vendor.
inline CameraRecord completeCamera(const std::string &id)
{
    return {id, "model " + id, "name " + id, "serial " + id, "extended " + id, CvxCPP::CvxTransportLayerUSB,
        makeInterface({{id, "vendor " + id}})};
}

/// Returns the record that is expected for completeCamera(). The provider never fills the addresses.
inline CameraInfo completeInfo(const QString &id)
{
    return {id, QStringLiteral("vendor ") + id, QStringLiteral("model ") + id, QStringLiteral("name ") + id,
        QStringLiteral("serial ") + id, {}, {}, QStringLiteral("USB")};
}

inline QVector<CameraInfo> list()
{
    return CorvixCameraProvider().listCameras();
}

/// Enumerates this camera as the only one and returns the resulting record.
inline CameraInfo listOne(const CameraRecord &record)
{
    script().cameras = {record};
    return list().value(0);
}

/// Determines how a read of a string fails.
enum class Failure
{
    AtLength,
    AtRead,
    OutOfMemory
};

inline void addFailures()
{
    QTest::addColumn<Failure>("failure");
    QTest::newRow("length") << Failure::AtLength;
    QTest::newRow("read") << Failure::AtRead;
    QTest::newRow("out of memory") << Failure::OutOfMemory;
}

/// Makes the reads number `first` to `last` of the subject's string fail. The first read has the number 1.
inline void failReads(
    Function function, const std::string &subject, Failure failure, int first = 1, int last = INT_MAX)
{
    script().intercept = [=, seen = 0](const Call &call) mutable {
        const bool matches = call.function == function && call.subject == subject
            && call.asksLength == (failure == Failure::AtLength);
        if (!matches || ++seen < first || seen > last)
            return CvxErrorSuccess;
        if (failure == Failure::OutOfMemory)
            throw std::bad_alloc();
        return CvxErrorFailed;
    };
}

} // namespace ProviderTest

Q_DECLARE_METATYPE(ProviderTest::Failure)
