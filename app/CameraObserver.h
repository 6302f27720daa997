#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Turns the SDK's camera-list notifications into a Qt signal. The signal is emitted on the SDK's thread.
class CameraObserver : public QObject, public CvxCPP::ICameraListObserver
{
    Q_OBJECT

public:
    /// The observer locks `sharedMutex` during each notification. The mutex may be null; otherwise it has to
    /// outlive the observer.
    explicit CameraObserver(QMutex *sharedMutex);

    /// Emits updateDeviceList() with the camera's extended ID. Emits nothing if the camera is null or its ID
    /// cannot be read.
    void CameraListChanged(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason) override;

signals:
    /// `reason` is the SDK's trigger value, unchanged.
    void updateDeviceList(QString cameraId, unsigned int reason);

private:
    QMutex *mutex;
};
