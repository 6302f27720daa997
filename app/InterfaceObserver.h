#pragma once

#include "CvxCPP/CvxCPP.h"

#include <QObject>

class QMutex;

/// Brings the SDK's interface-list notifications into Qt's world. Called on the SDK's thread.
class InterfaceObserver : public QObject, public CvxCPP::IInterfaceListObserver
{
    Q_OBJECT

public:
    /// `sharedMutex` (may be null) serialises this observer against others; it has to outlive us.
    explicit InterfaceObserver(QMutex *sharedMutex);

    void InterfaceListChanged(
        std::shared_ptr<CvxCPP::Interface> iface, CvxCPP::UpdateTriggerType reason) override;

signals:
    void updateInterfaceList();

private:
    QMutex *mutex;
};
