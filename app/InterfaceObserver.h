#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Turns the SDK's interface-list notifications into a Qt signal, which it emits on the SDK's thread.
class InterfaceObserver : public QObject, public CvxCPP::IInterfaceListObserver
{
    Q_OBJECT

public:
    /// The observer holds `sharedMutex` during a notification. It may be null; otherwise it must outlive us.
    explicit InterfaceObserver(QMutex *sharedMutex);

    void InterfaceListChanged(
        std::shared_ptr<CvxCPP::Interface> iface, CvxCPP::UpdateTriggerType reason) override;

signals:
    void updateInterfaceList();

private:
    QMutex *mutex;
};
