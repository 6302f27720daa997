#pragma once

#include "tools/kit/camera/CameraConnection.h"

#include <QRect>
#include <QSize>

/// Returns the call that makes the camera send only the drawn region, extended to the camera's increments.
/// The region after mirroring in the camera is meant, as the standard says, so ReverseX and ReverseY need no
/// conversion. The call fails without any effect if the camera's region does not have the size of the picture
/// any more on which the region was drawn.
/// @param drawn Pixels of the present picture.
CameraConnection::Call regionCall(const QRect &drawn, const QSize &picture);

/// Returns the call that makes the camera send its whole sensor.
CameraConnection::Call wholeSensorCall();
