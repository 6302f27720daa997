#include "app/CameraObserver.h"

#include "camera/SdkText.h"

#include <QMutex>
#include <QMutexLocker>

CameraObserver::CameraObserver(QMutex *sharedMutex) : mutex(sharedMutex) { }

void CameraObserver::CameraListChanged(
    std::shared_ptr<CvxCPP::Camera> camera, CvxCPP::UpdateTriggerType reason)
{
    const QMutexLocker locker(mutex);
    if (!camera)
        return;
    QString id;
    const auto extendedId
        = [&camera](char *buffer, unsigned &size) { return camera->GetID(buffer, size, true); };
    if (SdkText::read(extendedId, id))
        emit updateDeviceList(id, reason);
}
