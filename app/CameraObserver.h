#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Turns the SDK's camera-list notifications into a Qt signal, which it emits on the SDK's thread.
class CameraObserver : public QObject, public CvxCPP::ICameraListObserver
{
    Q_OBJECT

public:
    /// The observer holds `sharedMutex` during a notification. It may be null; otherwise it must outlive us.
    explicit CameraObserver(QMutex *sharedMutex);

    /// Emits updateDeviceList() with the extended ID; emits nothing if that ID cannot be read.
    void CameraListChanged(std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason) override;

signals:
    /// `reason` is the SDK's trigger value, unchanged.
    void updateDeviceList(QString cameraId, unsigned int reason);

private:
    QMutex *mutex;
};
