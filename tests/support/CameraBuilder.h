#pragma once

#include "camera/CameraInfo.h"

#include <QStringList>

#include <tuple>

/// Camera records and their comparison, for tests.
inline CameraInfo camera(const QString &vendor, const QString &model, const QString &serial = {},
    const QString &id = {}, const QString &interfaceType = {})
{
    CameraInfo info;
    info.cameraId = id;
    info.vendorName = vendor;
    info.modelName = model;
    info.serialNumber = serial;
    info.interfaceType = interfaceType;
    return info;
}

/// All eight fields, for comparison and for messages.
inline auto fields(const CameraInfo &c)
{
    return std::tie(c.cameraId, c.vendorName, c.modelName, c.cameraName, c.serialNumber, c.ipAddress,
        c.macAddress, c.interfaceType);
}

inline bool operator==(const CameraInfo &left, const CameraInfo &right)
{
    return fields(left) == fields(right);
}

/// For QCOMPARE's message.
inline char *toString(const CameraInfo &c)
{
    const QStringList values{c.cameraId, c.vendorName, c.modelName, c.cameraName, c.serialNumber, c.ipAddress,
        c.macAddress, c.interfaceType};
    return qstrdup(qUtf8Printable(QStringLiteral("CameraInfo(%1)").arg(values.join(QStringLiteral(" | ")))));
}
