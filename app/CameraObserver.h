#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Brings the SDK's camera-list notifications into Qt's world. Called on the SDK's thread.
class CameraObserver : public QObject, public CvxCPP::ICameraListObserver
{
    Q_OBJECT

public:
    /// `sharedMutex` (may be null) serialises this observer against others; it has to outlive us.
    explicit CameraObserver(QMutex *sharedMutex);

    /// Announces the camera by its extended ID; announces nothing when that cannot be read.
    void CameraListChanged(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason) override;

signals:
    /// `reason` is the SDK's trigger value, passed on unchanged.
    void updateDeviceList(QString cameraId, unsigned int reason);

private:
    QMutex *mutex;
};
