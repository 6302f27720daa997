#include "tools/kit/editors/LockText.h"

#include <QCoreApplication>

using CvxCPP::LockReason;

namespace {

QString notAvailableText(const QString &lockingFeature, const QString &lockingValue)
{
    if (lockingFeature.isEmpty())
        return QCoreApplication::translate("LockText", "Not available at present.");
    if (lockingValue.isEmpty())
        return QCoreApplication::translate("LockText", "Not available because of the setting of %1.")
            .arg(lockingFeature);
    return QCoreApplication::translate("LockText", "Not available while %1 is %2.")
        .arg(lockingFeature, lockingValue);
}

QString lockedText(const QString &lockingFeature, const QString &lockingValue)
{
    if (lockingFeature.isEmpty())
        return QCoreApplication::translate("LockText", "Locked by the camera.");
    if (lockingValue.isEmpty())
        return QCoreApplication::translate("LockText", "Controlled by %1.").arg(lockingFeature);
    return QCoreApplication::translate("LockText", "Locked while %1 is %2.")
        .arg(lockingFeature, lockingValue);
}

} // namespace

QString lockText(const CvxCPP::NodeState &state, const QString &lockingFeature, const QString &lockingValue)
{
    switch (state.lockReason) {
    case LockReason::None:
        return {};
    case LockReason::NotImplemented:
        return QCoreApplication::translate("LockText", "This camera does not have the feature.");
    case LockReason::NotAvailable:
        return notAvailableText(lockingFeature, lockingValue);
    case LockReason::ReadOnlyNode:
        return QCoreApplication::translate("LockText", "The camera only reports this value.");
    case LockReason::Watching:
        return QCoreApplication::translate(
            "LockText", "The camera is only watched, so nothing can be changed.");
    case LockReason::StreamRunning:
        return QCoreApplication::translate("LockText", "Locked while the camera streams.");
    case LockReason::LockedByNode:
        return lockedText(lockingFeature, lockingValue);
    }
    return {};
}
