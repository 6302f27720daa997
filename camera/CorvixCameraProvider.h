#pragma once

#include "camera/CameraInfo.h"

#include <QVector>

namespace CvxCPP {
class CvxSystem;
}

/// Turns what the camera SDK reports into CameraInfo records.
/// Listing never fails: an SDK error leaves a field, or the list, empty.
class CorvixCameraProvider
{
public:
    CorvixCameraProvider();

    /// Asks the SDK for its cameras, in the SDK's order. Blocks until every producer
    /// has answered or run out of time; call it off the GUI thread.
    QVector<CameraInfo> listCameras() const;

private:
    CvxCPP::CvxSystem &m_system; // The process-wide system; outlives us.
};
