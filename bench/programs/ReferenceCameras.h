#pragma once

#include "camera/CameraInfo.h"

#include <QVector>

/// So many cameras of the models that the shipped reference names, in its order and round again.
QVector<CameraInfo> referenceCameras(int count);
