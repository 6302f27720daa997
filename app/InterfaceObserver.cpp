#include "app/InterfaceObserver.h"

#include <QMutex>
#include <QMutexLocker>

InterfaceObserver::InterfaceObserver(QMutex *sharedMutex) : mutex(sharedMutex) { }

void InterfaceObserver::InterfaceListChanged(std::shared_ptr<CvxCPP::Interface>, CvxCPP::UpdateTriggerType)
{
    const QMutexLocker locker(mutex);
    emit updateInterfaceList();
}
