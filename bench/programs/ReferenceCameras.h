#pragma once

#include "camera/CameraInfo.h"

#include <QVector>

/// Returns `count` cameras. Their models come from the shipped camera reference and repeat in its order.
QVector<CameraInfo> referenceCameras(int count);
