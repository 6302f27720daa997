#pragma once

#include <QString>

/// One connected camera. A record whose fields are all empty means "no camera".
struct CameraInfo
{
    QString cameraId; ///< The SDK's camera ID. Together with serialNumber it identifies a table row.
    QString vendorName; ///< Read from the camera's interface; may be empty.
    QString modelName; ///< May be empty.
    QString cameraName; ///< The name that the SDK reports; may be empty.
    QString serialNumber; ///< May be empty.
    QString ipAddress; ///< Not filled by enumeration.
    QString macAddress; ///< Not filled by enumeration.
    QString interfaceType; ///< Transport-layer name such as "GigE"; "Other" if the SDK reports no known type.
};
