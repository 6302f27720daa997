#pragma once

#include "camera/CameraInfo.h"

#include <QVector>

/// Returns `count` cameras. Their models are those of the shipped reference, repeated in order.
QVector<CameraInfo> referenceCameras(int count);
