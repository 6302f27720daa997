#pragma once

#include <QString>

/// Describes one connected camera. A record whose fields are all empty means "no camera".
struct CameraInfo
{
    QString cameraId; ///< The SDK's camera ID. Together with serialNumber it identifies a table row.
    QString vendorName; ///< The vendor that the camera's interface reports; may be empty.
    QString modelName; ///< May be empty.
    QString cameraName; ///< The name that the SDK reports; may be empty.
    QString serialNumber; ///< May be empty.
    QString ipAddress; ///< Enumeration leaves this field empty.
    QString macAddress; ///< Enumeration leaves this field empty.
    QString interfaceType; ///< Transport-layer name such as "GigE"; "Other" if the SDK reports no known type.
};
