#include "app/CameraObserver.h"

#include "camera/SdkRead.h"

#include <QMutex>
#include <QMutexLocker>

CameraObserver::CameraObserver(QMutex *sharedMutex) : mutex(sharedMutex) { }

void CameraObserver::CameraListChanged(
    std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason)
{
    const QMutexLocker locker(mutex);
    if (!camera)
        return;
    const auto extendedId
        = [&camera](char *buffer, unsigned &size) { return camera->GetID(buffer, size, true); };
    if (const std::optional<QString> id = SdkRead::decoded(SdkRead::bytes(extendedId)))
        emit updateDeviceList(*id, reason);
}
