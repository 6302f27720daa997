#pragma once

#include "camera/CameraInfo.h"

#include <QVector>

namespace CvxCPP {
class CvxSystem;
}

/// Turns what the camera SDK reports into CameraInfo records.
/// Enumeration never fails: an SDK error leaves a field, or the whole list, empty.
class CorvixCameraProvider
{
public:
    CorvixCameraProvider();

    /// Returns the SDK's cameras in the SDK's order. Blocks until every producer has replied or its timeout
    /// has passed, so do not call this function on the GUI thread.
    QVector<CameraInfo> listCameras() const;

private:
    CvxCPP::CvxSystem &m_system; // The process-wide system, which outlives this object.
};
