#include "tools/kit/editors/LockAdvice.h"

#include "tools/kit/editors/LockText.h"
#include "tools/kit/editors/NumberText.h"

#include <QCoreApplication>

#include <algorithm>

using namespace CvxCPP;

namespace {

const std::string offEntry = "Off"; ///< The name that the naming convention gives the entry of every mode.

/// Returns the value of a switch or a mode as text; empty for values that say little without a unit.
QString modeText(const NodeInfo &info, const NodeValue &value)
{
    if (const auto *const name = std::get_if<std::string>(&value))
        return entryText(info, *name);
    if (const auto *const isOn = std::get_if<bool>(&value))
        return *isOn ? QCoreApplication::translate("LockText", "on")
                     : QCoreApplication::translate("LockText", "off");
    return {};
}

/// Returns the value that switches a mode off; no value if it is off, or if the camera does not allow that.
NodeValue offValue(const NodeState &state)
{
    if (state.lockReason != LockReason::None)
        return {};
    if (const auto *const isOn = std::get_if<bool>(&state.value); isOn && *isOn)
        return false;
    const auto *const entry = std::get_if<std::string>(&state.value);
    const auto &available = state.availableEntries;
    if (!entry || *entry == offEntry
        || std::find(available.begin(), available.end(), offEntry) == available.end())
        return {};
    return offEntry;
}

} // namespace

LockAdvice lockAdvice(const NodeState &state, const NodeInfo *lockingInfo, const NodeState *lockingState)
{
    const QString shownName
        = QString::fromStdString(lockingInfo ? lockingInfo->displayName : state.lockingNode);
    LockAdvice advice;
    advice.reason = lockText(state, shownName,
        lockingInfo && lockingState ? modeText(*lockingInfo, lockingState->value) : QString());
    const bool isLocked = state.lockReason == LockReason::LockedByNode;
    if (!lockingInfo || (!isLocked && state.lockReason != LockReason::NotAvailable))
        return advice;
    advice.lockingFeature = QString::fromStdString(lockingInfo->name);
    advice.showText = QCoreApplication::translate("LockText", "Show %1").arg(shownName);
    if (!isLocked || !lockingState)
        return advice;
    advice.unlockValue = offValue(*lockingState);
    if (advice.unlockValue != NodeValue())
        advice.unlockText = QCoreApplication::translate("LockText", "Set %1 to %2")
                                .arg(shownName, modeText(*lockingInfo, advice.unlockValue));
    return advice;
}
