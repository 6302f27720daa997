#pragma once

#include "camera/CameraInfo.h"

#include <tuple>

/// Builds a camera record.
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

inline bool operator==(const CameraInfo &left, const CameraInfo &right)
{
    const auto fields = [](const CameraInfo &info) {
        return std::tie(info.cameraId, info.vendorName, info.modelName, info.cameraName, info.serialNumber,
            info.ipAddress, info.macAddress, info.interfaceType);
    };
    return fields(left) == fields(right);
}
