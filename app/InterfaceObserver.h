#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Turns the SDK's interface-list notifications into a Qt signal. The signal is emitted on the SDK's thread.
class InterfaceObserver : public QObject, public CvxCPP::IInterfaceListObserver
{
    Q_OBJECT

public:
    /// The observer locks `sharedMutex` during each notification. The mutex may be null; otherwise it has to
    /// outlive the observer.
    explicit InterfaceObserver(QMutex *sharedMutex);

    void InterfaceListChanged(
        std::shared_ptr<CvxCPP::Interface> iface, CvxCPP::UpdateTriggerType reason) override;

signals:
    void updateInterfaceList();

private:
    QMutex *mutex;
};
